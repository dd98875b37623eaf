// What an element answers fits together: where slots of one signature are exchanged, it does not.

#include <algorithm>

#include "oxcheck/check.h"
#include "oxcheck/stage/anything.h"
#include "oxcheck/stage/script.h"
#include "oxcheck/tree/play.h"

namespace oxcheck {

namespace {

std::string number(double value) { return std::to_string(value); }

/// Takes down the size of the picture it is given, as declared and as delivered.
struct picture_sink final : ox::bitmap_visitor_impl, ox::thrice_interleaved_bytes_visitor_impl, lent_object {
    using interface = ox::bitmap_visitor_impl;
    std::int64_t width = 0, height = 0, columns = 0, rows = 0;

    void visit(custom_pointer bitmap) override {
        if (late("a bitmap visitor")) return;
        width = ox::call<&ox::bitmap_impl::width>(bitmap);
        height = ox::call<&ox::bitmap_impl::height>(bitmap);
        ox::call<&ox::bitmap_impl::visit_pixels>(
            bitmap, ox::make_pointer<ox::thrice_interleaved_bytes_visitor_impl>(*this));
    }
    void visit(std::int32_t row_count, std::int32_t, std::int32_t column_count, std::int32_t, std::int32_t,
               std::int32_t, const std::uint8_t*) override {
        rows = row_count;
        columns = column_count;
    }
};

/// Whether two answers of one element go together.
class judgement {
public:
    explicit judgement(const element& each) : judged_(each) {}

    void expect(bool holds, const std::string& claim, const std::string& got) const {
        require(holds, std::string(judged_.interface) + ": " + claim, got);
    }
    template <auto Operation, class... A>
    auto ask(A... arguments) const {
        return ox::call<Operation>(judged_.pointer, arguments...);
    }
    template <auto Visit, class... A>
    bool has_text(A... arguments) const {
        return !read_text([&](custom_pointer v) {
                    ox::call<Visit>(judged_.pointer, arguments..., v);
                }).empty();
    }
    /// Whether there is a picture, which is as large as it says.
    template <auto Visit, class... A>
    bool has_picture(A... arguments) const {
        lending<picture_sink> sink;
        ox::call<Visit>(judged_.pointer, arguments..., sink.pointer());
        expect(
            sink->rows == 0 || (sink->columns == sink->width && sink->rows == sink->height),
            "a picture of " + std::to_string(sink->width) + " x " + std::to_string(sink->height) + " pixels",
            std::to_string(sink->columns) + " x " + std::to_string(sink->rows));
        return sink->rows > 0;
    }
    std::uint32_t rows() const { return rows_of(judged_); }
    custom_pointer pointer() const { return judged_.pointer; }

private:
    const element& judged_;
};

void judge(const judgement& judged, const ox::docker_impl*) {
    judged.expect(judged.has_text<&ox::docker_impl::visit_caption>(), "a caption", "none");
    judged.has_picture<&ox::docker_impl::visit_icon>();
}

/// No element stands in two cells, as they seem to where counts of several columns and rows are exchanged.
void judge(const judgement& judged, const ox::grid_layout_impl*) {
    const std::int32_t columns = judged.ask<&ox::grid_layout_impl::column_count>();
    const std::int32_t rows = judged.ask<&ox::grid_layout_impl::row_count>();
    judged.expect(columns >= 0 && rows >= 0, "numbers of columns and rows",
                  std::to_string(columns) + " and " + std::to_string(rows));
    std::vector<custom_pointer> met;
    for (std::int32_t row = 0; row < rows; ++row)
        for (std::int32_t column = 0; column < columns; ++column)
            for (const element& each : cell_of(judged.pointer(), column, row)) {
                judged.expect(std::ranges::find(met, each.pointer) == met.end(),
                              "each element in one of " + std::to_string(columns) + " columns and " +
                                  std::to_string(rows) + " rows",
                              std::string(each.interface) + " in two cells");
                met.push_back(each.pointer);
            }
}

void judge(const judgement& judged, const ox::stack_layout_impl*) {
    const std::uint32_t panels = judged.ask<&ox::stack_layout_impl::child_count>();
    const std::uint32_t current = judged.ask<&ox::stack_layout_impl::current>();
    judged.expect(panels == 0 || current < panels, "a current one of " + std::to_string(panels) + " panels",
                  std::to_string(current));
}

void judge(const judgement& judged, const ox::groupbox_impl*) {
    judged.expect(judged.has_text<&ox::groupbox_impl::visit_caption>(), "a caption", "none");
}

void judge(const judgement& judged, const ox::button_impl*) {
    const bool picture = judged.has_picture<&ox::button_impl::visit_image>();
    judged.expect(picture || judged.has_text<&ox::button_impl::visit_caption>(), "a caption or a picture",
                  "none");
}

void judge(const judgement& judged, const ox::action_tool_impl*) {
    judged.expect(judged.has_text<&ox::action_tool_impl::visit_caption>(), "a caption", "none");
    judged.has_picture<&ox::action_tool_impl::visit_image>();
}

void judge(const judgement& judged, const ox::dropdown_impl*) {
    const std::uint32_t items = judged.ask<&ox::dropdown_impl::item_count>();
    const std::uint32_t current = judged.ask<&ox::dropdown_impl::current>();
    judged.expect(current < items || current == ox::dropdown_impl::no_item,
                  "a current one of " + std::to_string(items) + " items, or none", std::to_string(current));
}

void judge(const judgement& judged, const ox::floating_input_impl*) {
    const double minimum = judged.ask<&ox::floating_input_impl::minimum>();
    const double maximum = judged.ask<&ox::floating_input_impl::maximum>();
    judged.expect(minimum <= maximum, "a minimum below the maximum",
                  number(minimum) + " and " + number(maximum));
    const double decimals = judged.ask<&ox::floating_input_impl::decimals>();
    judged.expect(decimals >= 0, "a number of decimal places", number(decimals));
}

void judge(const judgement& judged, const ox::button_box_impl*) {
    const std::int32_t count = judged.ask<&ox::button_box_impl::count>();
    for (const std::int32_t index : {judged.ask<&ox::button_box_impl::default_index>(),
                                     judged.ask<&ox::button_box_impl::second_index>()})
        judged.expect(index >= -1 && index < count,
                      "one of " + std::to_string(count) + " buttons, or -1 for none", std::to_string(index));
}

void judge(const judgement& judged, const ox::outline_impl*) {
    using I = ox::outline_impl;
    const std::uint32_t columns = judged.ask<&I::column_count>();
    for (std::uint32_t i = 0; i < columns; ++i)
        judged.expect(column_of(judged.pointer(), i).size() == 1,
                      "a column in place " + std::to_string(i) + " of " + std::to_string(columns),
                      std::to_string(column_of(judged.pointer(), i).size()));
    const auto current = current_row_of(judged.pointer());
    judged.expect(!current || *current < judged.rows(),
                  "a current one of " + std::to_string(judged.rows()) + " rows, or none",
                  current ? std::to_string(*current) : "");
    for (std::uint32_t row = 0; row < judged.rows(); ++row) {
        anything item(row);
        judged.expect(
            judged.ask<&I::has_children>(item.pointer()) == (judged.ask<&I::child_count>(item.pointer()) > 0),
            "rows have children where they have a number of them", "row " + std::to_string(row));
    }
}

void judge(const judgement& judged, const ox::string_outline_column_impl*) {
    using I = ox::string_outline_column_impl;
    for (std::uint32_t row = 0; row < judged.rows(); ++row) {
        anything item(row);
        judged.expect(judged.has_text<&I::visit_cell_text>(item.pointer()) ||
                          !judged.has_text<&I::visit_cell_hint>(item.pointer()),
                      "a text where there is a hint", "none in row " + std::to_string(row));
    }
    for (std::uint32_t a = 0; a < judged.rows(); ++a)
        for (std::uint32_t b = 0; b <= a; ++b) {
            anything first(a), second(b);
            judged.expect(
                !judged.ask<&I::sorts_after>(first.pointer(), second.pointer()) ||
                    !judged.ask<&I::sorts_after>(second.pointer(), first.pointer()),
                "one of two rows goes first",
                "rows " + std::to_string(b) + " and " + std::to_string(a) + " go after one another");
        }
}

void judge(const judgement& judged, const ox::bitmap_outline_column_impl*) {
    if (judged.rows() == 0) return;
    anything first(0);
    judged.has_picture<&ox::bitmap_outline_column_impl::visit_cell_image>(first.pointer());
}

void judge_all(const std::vector<element>& dialog) {
    for (const element& each : dialog)
        with_kind_of(each, [&each]<class I>() {
            if constexpr (requires { judge(judgement(each), static_cast<const I*>(nullptr)); })
                judge(judgement(each), static_cast<const I*>(nullptr));
        });
}

/// What was set is what is answered.
void set_and_ask(const judgement& judged, const ox::dropdown_impl*) {
    using I = ox::dropdown_impl;
    for (std::uint32_t i = 0; i < judged.ask<&I::item_count>(); ++i) {
        judged.ask<&I::select>(i);
        judged.expect(judged.ask<&I::current>() == i, "item " + std::to_string(i) + " when it was chosen",
                      std::to_string(judged.ask<&I::current>()));
    }
}

void set_and_ask(const judgement& judged, const ox::floating_input_impl*) {
    using I = ox::floating_input_impl;
    const double before = judged.ask<&I::value>();
    for (const double value : {0.5, before})
        judged.expect(judged.ask<&I::read_only>() || !judged.ask<&I::set_value>(value) ||
                          judged.ask<&I::value>() == value,
                      number(value) + " when it was entered", number(judged.ask<&I::value>()));
}

void set_and_ask(const judgement& judged, const ox::outline_checks_impl*) {
    using I = ox::outline_checks_impl;
    for (std::uint32_t row = 0; row < judged.rows(); ++row) {
        anything item(row);
        const bool before = judged.ask<&I::state>(item.pointer());
        for (const bool state : {!before, before}) {
            judged.ask<&I::set_state>(item.pointer(), state);
            judged.expect(judged.ask<&I::state>(item.pointer()) == state, "the state that was set last",
                          "the other");
        }
    }
}

void set_and_ask_all(const std::vector<element>& dialog) {
    for (const element& each : dialog)
        with_kind_of(each, [&each]<class I>() {
            if constexpr (requires { set_and_ask(judgement(each), static_cast<const I*>(nullptr)); })
                set_and_ask(judgement(each), static_cast<const I*>(nullptr));
        });
}

void fit_together(const subject& given) {
    script::set_stage();
    session started(given.bundle);
    bool seen = false;
    started.dialogs.on_show = [&seen](custom_pointer docker, custom_pointer box, int) {
        seen = true;
        const std::vector<element> dialog = walk(docker, box);
        judge_all(dialog);
        set_and_ask_all(dialog);
        user acting;
        acting.around = [&dialog](const act& done, const std::function<void()>& perform) {
            perform();
            note("after " + done.what + " of " + done.target.interface);
            judge_all(dialog);
        };
        return acting.operate(dialog);
    };
    started.run();
    if (!seen) throw no_occasion("the utility shows no dialog");
}

constexpr check checks[] = {
    {"elements.consistent", "the answers of an element fit together, whatever the user does", fit_together},
};

}  // namespace

std::span<const check> coherence_checks() { return checks; }

}  // namespace oxcheck
