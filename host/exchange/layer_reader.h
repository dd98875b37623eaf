#pragma once
/// A layer of lines as scenes.

#include <filesystem>
#include <optional>

#include "exchange/attributes.h"
#include "exchange/exchange.h"
#include "exchange/layer_crs.h"

class OGRLayer;

namespace oxhost {

class layer_reader {
public:
    layer_reader(const std::filesystem::path& source, OGRLayer& layer, const import_options& options,
                 import_notes& notes);

    /// Answers the number of scenes.
    std::size_t read(scene_taker& taker);

private:
    std::size_t read(const OGRFeature& feature, scene_taker& taker);
    void hand(const new_scene& scene, scene_taker& taker);
    void describe(const OGRFeature& feature, new_scene& scene);
    std::string given_text(const std::string& text);

    OGRLayer& layer_;
    const import_options& options_;
    import_notes& notes_;
    layer_crs crs_;
    std::string name_;
    int caption_, profile_, proj4_;  ///< fields that the scene itself takes over; -1 when there is none
    bool keeps_origin_;              ///< the layer tells already where its features came from
    bool took_layer_crs_ = false;
    bool begun_ = false;
    std::optional<layer_attributes> attributes_;
};

/// The attributes that tell where a scene came from.
std::vector<field> origin_fields();

/// Tells the taker of a layer's fields, and the user of those that were renamed.
void begin_layer(scene_taker& taker, const std::vector<field>& fields, const std::string& layer,
                 import_notes& notes);

}  // namespace oxhost
