#pragma once
/// Fields of a GDAL layer as attributes of scenes.

#include <span>
#include <string>
#include <vector>

#include "exchange/import_notes.h"
#include "project/fields.h"

class OGRFeature;
class OGRFeatureDefn;
class OGRFieldDefn;

namespace oxhost {

/// The type that a field's values get: times and lists become texts, the lists as JSON.
field field_of(const OGRFieldDefn& source);
field_value value_of(const OGRFeature& feature, int source, field_type type, import_notes& notes);

/// The fields of a layer but those in `taken`. What changes its type is remarked upon.
class layer_attributes {
public:
    layer_attributes(OGRFeatureDefn& layer, std::span<const int> taken, import_notes& notes);

    const std::vector<field>& fields() const { return fields_; }
    /// Appends the values of `fields`.
    void read(const OGRFeature& feature, std::vector<field_value>& values, import_notes& notes) const;

private:
    std::vector<field> fields_;
    std::vector<int> sources_;
};

}  // namespace oxhost
