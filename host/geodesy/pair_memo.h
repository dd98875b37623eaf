#pragma once
/// What was judged about two texts, kept: lists ask the same few pairs for every one of their rows.

#include <string>
#include <string_view>
#include <unordered_map>

namespace oxhost {

template <class Char>
class pair_memo {
public:
    using view = std::basic_string_view<Char>;

    /// `judge(a, b)`, called once per pair.
    template <class Judge>
    bool operator()(view a, view b, Judge&& judge) {
        key_.assign(a).append(1, Char{}).append(b);
        if (const auto found = judged_.find(key_); found != judged_.end()) return found->second;
        if (judged_.size() >= most_kept) judged_.clear();
        const std::basic_string<Char> key = key_;
        return judged_[key] = judge(a, b);
    }

private:
    static constexpr std::size_t most_kept = 32768;  // a large project, a projection per line; tens of MB

    std::basic_string<Char> key_;  // keeps its buffer from call to call
    std::unordered_map<std::basic_string<Char>, bool> judged_;
};

}  // namespace oxhost
