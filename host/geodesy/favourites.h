#pragma once
/// The favourite projections of a user: captions with proj4 texts, kept in `favourites.json` of the
/// configuration folder: $OXHOST_CONFIG, else $XDG_CONFIG_HOME/oxhost, else ~/.config/oxhost, ~ being the
/// account's folder where HOME says nothing. [ui]

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
    /// Does to the stored list what was done to this one since it was loaded, and takes over the outcome:
    /// what others stored meanwhile stays. A lock on its folder keeps writers apart. A list without
    /// changes writes nothing; a file that is a link stays one. Throws file_error, also when the file could
    /// not be read before.
    void save();

    std::int32_t count() const { return static_cast<std::int32_t>(items_.size()); }
    /// Null outside the list.
    const favourite* at(std::int32_t index) const;
    void add(favourite item) { items_.push_back({std::move(item), {}}); }
    void remove(std::int32_t index);
    void rename(std::int32_t index, std::string caption);

private:
    struct entry {
        favourite now;
        std::optional<favourite> stored;  ///< as loaded; nothing for one that was added since
    };
    bool is_changed() const;
    std::vector<favourite> applied_to(std::vector<favourite> others) const;
    void take(std::vector<favourite> stored);

    std::vector<entry> items_;
    std::vector<favourite> removed_;  ///< as loaded
    bool unreadable_ = false;
};

/// Where the list is kept.
std::string favourites_path();

}  // namespace oxhost
