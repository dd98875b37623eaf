#pragma once
/// What was worked out about a text, or about a pair of texts, kept: many rows, few texts.

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

namespace oxhost {

/// Not copied, since what it lends lives in it. Single thread.
template <class Value, class Char = char>
class memo {
public:
    using view = std::basic_string_view<Char>;

    /// Begins afresh when it holds as many.
    explicit memo(std::size_t most_kept) : most_kept_(most_kept) {}
    memo(const memo&) = delete;
    memo& operator=(const memo&) = delete;

    /// What `make()` answered for the text, called once while that is kept; lent until the next call. What
    /// `make` throws is not kept.
    template <class Make>
    const Value& of(view text, Make&& make) {
        key_.assign(text);
        return found_or_made(make);
    }
    template <class Make>
    const Value& of(view first, view second, Make&& make) {
        key_.assign(first).append(1, Char{}).append(second);
        return found_or_made(make);
    }

private:
    template <class Make>
    const Value& found_or_made(Make&& make) {
        if (const auto found = kept_.find(key_); found != kept_.end()) return found->second;
        auto key = key_;  // `make` may ask for another text
        Value made = make();
        if (kept_.size() >= most_kept_) kept_.clear();
        return kept_.insert_or_assign(std::move(key), std::move(made)).first->second;
    }

    std::size_t most_kept_;
    std::basic_string<Char> key_;  // keeps its buffer from call to call
    std::unordered_map<std::basic_string<Char>, Value> kept_;
};

}  // namespace oxhost
