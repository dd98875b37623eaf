#include <algorithm>
#include <iterator>

#include "platform/posix/resource_set.h"
#include "resources/text.h"

namespace ox::platform {
namespace {

struct text_entry {
    std::uint32_t id;
    const wchar_t* russian;
    const wchar_t* english;
};

constexpr text_entry texts[] = {
#define OX_TEXT(symbol, id, russian, english) {id, L"" russian, L"" english},
#include "resources/texts.inc"
#undef OX_TEXT
};

constexpr bool before(const text_entry& a, const text_entry& b) { return a.id < b.id; }

static_assert(std::adjacent_find(std::begin(texts), std::end(texts),
                                 [](const text_entry& a, const text_entry& b) { return !before(a, b); }) ==
                  std::end(texts),
              "texts.inc is to be sorted by id, each id once");
static_assert(std::prev(std::end(texts))->id < text::english_offset, "English ids would meet Russian ones");

constexpr std::uint8_t favourite_picture[] = {
#include "own_pictures.inc"
};

class own_set final : public resource_set {
public:
    const wchar_t* text(std::uint32_t id) const override {
        const bool english = id >= text::english_offset;
        const std::uint32_t base = english ? id - text::english_offset : id;
        const auto* found =
            std::lower_bound(std::begin(texts), std::end(texts), text_entry{base, {}, {}}, before);
        if (found == std::end(texts) || found->id != base) return nullptr;
        return english ? found->english : found->russian;
    }
    std::vector<std::uint8_t> bitmap_file(std::uint32_t id) const override {
        if (id != picture::favourite) return {};
        return {std::begin(favourite_picture), std::end(favourite_picture)};
    }
    std::vector<std::uint8_t> icon_file(std::uint32_t) const override { return {}; }
    std::optional<std::string> raw_text(std::uint32_t) const override { return std::nullopt; }
};

}  // namespace

const resource_set& own_resources() {
    static const own_set only;
    return only;
}

}  // namespace ox::platform
