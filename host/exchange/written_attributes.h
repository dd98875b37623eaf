#pragma once
/// Attributes of scenes as fields of a layer that GDAL writes.

#include <string>
#include <vector>

#include "exchange/formats.h"
#include "exchange/losses.h"
#include "project/fields.h"

class OGRFeature;
class OGRLayer;

namespace oxhost {

/// The fields of one layer, in the order that they are made in. A field that the format has no type for is
/// made of one that holds its values, or left out; what that means for the values is counted.
class written_attributes {
public:
    written_attributes(OGRLayer& layer, export_format format, losses& lost)
        : layer_(layer), format_(format), lost_(lost) {}

    /// False when GDAL refuses.
    bool add(const field& wanted);
    /// In the order of the fields; missing values are null.
    void set(OGRFeature& feature, const std::vector<field_value>& values) const;

private:
    struct column {
        field as;
        int index = -1;  ///< in the layer; -1: the format has no place for it
    };
    std::string fitting_name(const std::string& name) const;
    bool set(OGRFeature& feature, const column& to, const field_value& value) const;
    void note_rounding(const column& to, const field_value& value) const;

    OGRLayer& layer_;
    export_format format_;
    losses& lost_;
    std::vector<column> columns_;
};

/// Bytes of text that a field of the format holds; 0 is no limit.
std::size_t text_limit(export_format format);

}  // namespace oxhost
