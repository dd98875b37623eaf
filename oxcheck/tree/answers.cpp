#include "oxcheck/tree/answers.h"

#include <sstream>

#include "oxcheck/stage/anything.h"
#include "oxcheck/stage/lent.h"
#include "testing/host_double/host_double.h"

namespace oxcheck {

namespace {

/// The answers of one element, as they come.
class reading {
public:
    explicit reading(const element& each) : asked_(each.pointer), rows_(rows_of(each)) {}

    template <auto Operation, class... A>
    auto value(const char* name, A... arguments) {
        const auto answer = ox::call<Operation>(asked_, arguments...);
        text_ << name << " " << answer << "\n";
        return answer;
    }
    template <auto Visit, class... A>
    void text(const char* name, A... arguments) {
        const std::wstring answer =
            read_text([&](custom_pointer visitor) { ox::call<Visit>(asked_, arguments..., visitor); });
        text_ << name << " \"" << host_double::narrow(answer) << "\"\n";
    }
    template <class Do>
    void for_each_row(Do work) {
        for (std::uint32_t row = 0; row < rows_; ++row) {
            anything item(row);
            work(item.pointer());
        }
    }
    std::string all() const { return text_.str(); }

private:
    custom_pointer asked_;
    std::uint32_t rows_;
    std::ostringstream text_;
};

// One per kind of element; kinds of which nothing is drawn have none.

void read(reading& said, const ox::docker_impl*) { said.text<&ox::docker_impl::visit_caption>("caption"); }

void read(reading& said, const ox::grid_layout_impl*) {
    using I = ox::grid_layout_impl;
    said.value<&I::layout_value>("layout value");
    const std::int32_t columns = said.value<&I::column_count>("columns");
    const std::int32_t rows = said.value<&I::row_count>("rows");
    for (std::int32_t i = 0; i < columns; ++i) {
        said.value<&I::column_expands>("column expands", i);
        said.value<&I::column_value>("column value", i);
        said.value<&I::column_shown>("column shown", i);
    }
    for (std::int32_t i = 0; i < rows; ++i) {
        said.value<&I::row_expands>("row expands", i);
        said.value<&I::row_value>("row value", i);
        said.value<&I::row_shown>("row shown", i);
    }
}

void read(reading& said, const ox::stack_layout_impl*) {
    said.value<&ox::stack_layout_impl::child_count>("panels");
    said.value<&ox::stack_layout_impl::current>("current panel");
}

void read(reading& said, const ox::groupbox_impl*) {
    said.text<&ox::groupbox_impl::visit_caption>("caption");
    said.text<&ox::groupbox_impl::visit_second_text>("second text");
    said.value<&ox::groupbox_impl::flag>("flag");
}

void read(reading& said, const ox::label_impl*) {
    said.text<&ox::label_impl::visit_caption>("caption");
    said.value<&ox::label_impl::enabled>("enabled");
}

void read(reading& said, const ox::button_impl*) {
    using I = ox::button_impl;
    said.text<&I::visit_caption>("caption");
    said.text<&I::visit_hint>("hint");
    said.value<&I::enabled>("enabled");
    said.value<&I::flag_2>("flag 2");
    said.value<&I::flag_4>("flag 4");
}

void read(reading& said, const ox::input_impl*) {
    using I = ox::input_impl;
    said.text<&I::visit_text>("text");
    said.text<&I::visit_caption>("caption");
    said.value<&I::enabled>("enabled");
    said.value<&I::flag_2>("flag 2");
    said.value<&I::flag_3>("flag 3");
    said.value<&I::value>("value");
}

void read(reading& said, const ox::floating_input_impl*) {
    using I = ox::floating_input_impl;
    said.value<&I::value>("value");
    said.value<&I::minimum>("minimum");
    said.value<&I::maximum>("maximum");
    said.value<&I::decimals>("decimals");
    said.text<&I::visit_caption>("caption");
    said.value<&I::enabled>("enabled");
    said.value<&I::read_only>("read-only");
}

void read(reading& said, const ox::dropdown_impl*) {
    using I = ox::dropdown_impl;
    const std::uint32_t items = said.value<&I::item_count>("items");
    for (std::uint32_t i = 0; i < items; ++i) said.text<&I::visit_item>("item", i);
    said.text<&I::visit_text>("text");
    said.value<&I::value>("value");
    said.value<&I::enabled>("enabled");
    said.value<&I::current>("current item");
}

void read(reading& said, const ox::multiline_output_impl*) {
    using I = ox::multiline_output_impl;
    said.text<&I::visit_text>("text");
    said.text<&I::visit_caption>("caption");
    said.value<&I::enabled>("enabled");
    said.value<&I::first_value>("first value");
    said.value<&I::second_value>("second value");
}

void read(reading& said, const ox::outline_impl*) {
    using I = ox::outline_impl;
    said.value<&I::column_count>("columns");
    said.value<&I::child_count>("rows", custom_pointer{});
}

void read(reading& said, const ox::outline_checks_impl*) {
    said.for_each_row(
        [&said](custom_pointer item) { said.value<&ox::outline_checks_impl::state>("row checked", item); });
}

void read(reading& said, const ox::string_outline_column_impl*) {
    using I = ox::string_outline_column_impl;
    said.text<&I::visit_caption>("caption");
    said.for_each_row([&said](custom_pointer item) {
        said.text<&I::visit_cell_text>("cell", item);
        said.text<&I::visit_cell_hint>("cell hint", item);
        said.value<&I::highlight>("cell highlighted", item);
        said.value<&I::cell_is_editable>("cell editable", item);
    });
}

void read(reading& said, const ox::bitmap_outline_column_impl*) {
    said.text<&ox::bitmap_outline_column_impl::visit_caption>("caption");
}

void read(reading& said, const ox::action_tool_impl*) {
    using I = ox::action_tool_impl;
    said.text<&I::visit_caption>("caption");
    said.text<&I::visit_hint>("hint");
    said.text<&I::visit_long_text>("long text");
    said.value<&I::enabled>("enabled");
    said.value<&I::checked>("checked");
}

void read(reading& said, const ox::button_box_impl*) {
    using I = ox::button_box_impl;
    const std::int32_t buttons = said.value<&I::count>("buttons");
    for (std::int32_t i = 0; i < buttons; ++i) {
        said.text<&I::visit_caption>("caption", i);
        said.value<&I::enabled>("enabled", i);
    }
    said.value<&I::default_index>("default button");
    said.value<&I::second_index>("second button");
}

}  // namespace

std::string answers_of(const element& each) {
    reading answers(each);
    with_kind_of(each, [&answers]<class I>() {
        if constexpr (requires { read(answers, static_cast<const I*>(nullptr)); })
            read(answers, static_cast<const I*>(nullptr));
    });
    return answers.all();
}

std::string selection_of(const element& outline) {
    reading answers(outline);
    answers.for_each_row([&answers](custom_pointer item) {
        answers.value<&ox::outline_impl::is_selected>("row selected", item);
    });
    const auto current = current_row_of(outline.pointer);
    return answers.all() + "current row " + (current ? std::to_string(*current) : "none") + "\n";
}

std::string first_difference(const std::string& a, const std::string& b) {
    std::istringstream first(a), second(b);
    std::string line, other;
    while (true) {
        const bool more = static_cast<bool>(std::getline(first, line));
        const bool more_of_other = static_cast<bool>(std::getline(second, other));
        if (!more && !more_of_other) return {};
        if (!more) line = "nothing";
        if (!more_of_other) other = "nothing";
        if (line != other) return line + ", " + other;
    }
}

}  // namespace oxcheck
