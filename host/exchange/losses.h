#pragma once
/// What a format changes or leaves out, counted while scenes are written to it.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace oxhost {

class losses {
public:
    /// One more of a kind, which is a text in the user's language; `of` is the field that it concerns.
    void add(std::string_view kind, const std::string& of = {});
    /// A line for each kind: `kind: 12 (depth 10, dip 2)`.
    std::vector<std::string> lines() const;

private:
    struct counted {
        std::string name;
        std::size_t count = 0;
        std::vector<counted> parts = {};
    };
    static counted& find(std::vector<counted>& among, std::string_view name);
    std::vector<counted> kinds_;
};

}  // namespace oxhost
