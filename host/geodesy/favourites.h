#pragma once
/// The user's favourite projections, kept in `favourites.json` of the configuration folder:
/// $OXHOST_CONFIG, else $XDG_CONFIG_HOME/oxhost, else ~/.config/oxhost. [ui]

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace oxhost {

struct favourite {
    std::string caption;
    std::string proj4;
    friend bool operator==(const favourite&, const favourite&) = default;
};

class favourite_list {
public:
    /// Replaces the items by the stored ones. When that fails, the list is empty and one line says why: a
    /// file that is damaged is renamed to `...damaged-N`, one that cannot be read stays.
    std::optional<std::string> load();
    /// Stores the items; a list as it was loaded or stored writes nothing. Whoever stores last wins.
    /// Throws file_error, also when the file could not be read before.
    void save();

    std::int32_t count() const { return static_cast<std::int32_t>(items_.size()); }
    /// Null outside the list.
    const favourite* at(std::int32_t index) const;
    void add(favourite item) { items_.push_back(std::move(item)); }
    void remove(std::int32_t index);
    void rename(std::int32_t index, std::string caption);

private:
    std::vector<favourite> items_;
    std::vector<favourite> stored_;
    bool unreadable_ = false;
};

/// Where the list is kept.
std::string favourites_path();

}  // namespace oxhost
