#pragma once
/// Names of interfaces, and one tag type per interface of the vocabulary.

#include <array>
#include <cstddef>
#include <string_view>

namespace ox {

/// "ox_" + words + "_interface_" + version: the text by which objects are asked for an interface.
/// Matched byte for byte; every version is an interface of its own.
class interface_name {
public:
    constexpr interface_name(std::string_view words, unsigned version) {
        append("ox_");
        append(words);
        append("_interface_");
        if (version >= 100) digit(version / 100);
        if (version >= 10) digit(version / 10);
        digit(version);
    }

    constexpr const char* c_str() const { return text_.data(); }
    constexpr std::string_view view() const { return {text_.data(), length_}; }

private:
    constexpr void append(std::string_view part) {
        for (const char c : part) text_[length_++] = c;
    }
    constexpr void digit(unsigned number) { text_[length_++] = static_cast<char>('0' + number % 10); }

    std::array<char, 80> text_{};
    std::size_t length_ = 0;
};

#define OX_BOUND(words, version)                               \
    struct words {                                             \
        static constexpr interface_name name{#words, version}; \
    };
#define OX_PLAIN(words, version) OX_BOUND(words, version)
#define OX_ASKED(words, version) OX_BOUND(words, version)
#include "border/interface_names.inc"
#undef OX_ASKED
#undef OX_PLAIN
#undef OX_BOUND

}  // namespace ox
