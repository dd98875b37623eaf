#pragma once
/// What the utility says to the user at its end.

#include <algorithm>
#include <string>
#include <vector>

#include "oxcheck/stage/session.h"
#include "testing/host_double/host_double.h"

namespace oxcheck {

// The utility of this contract whose very words are known, in English; of others only the kind of message
// counts.
inline constexpr const wchar_t* worded_utility = L"oxk_scn2d_prf_reproj";
inline constexpr const wchar_t* bad_settings = L"Incorrect reprojection settings";
inline constexpr const wchar_t* reprojection_error = L"Reprojection error";
inline constexpr const wchar_t* reprojection_complete = L"Reprojection complete";

struct said {
    std::vector<std::wstring> messages, errors;

    bool operator==(const said&) const = default;
    /// The same with `session`'s utility in mind: without the words where they are not known.
    said as_known_in(const session& started) const {
        said known = *this;
        const bool worded = std::ranges::any_of(
            started.services(), [](const service& each) { return each.id == worded_utility; });
        for (auto* texts : {&known.messages, &known.errors})
            if (!worded) std::ranges::fill(*texts, L"any");
        return known;
    }
};

inline said heard() { return {host_double::host().messages, host_double::host().errors}; }

inline std::string describe(const said& words) {
    std::string text;
    for (const auto& each : words.messages) text += "message \"" + host_double::narrow(each) + "\" ";
    for (const auto& each : words.errors) text += "error \"" + host_double::narrow(each) + "\" ";
    return text.empty() ? "nothing" : text;
}

}  // namespace oxcheck
