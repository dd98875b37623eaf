// When elements tell their views of a change, and what they answer then.

#include <algorithm>
#include <deque>

#include "oxcheck/check.h"
#include "oxcheck/stage/script.h"
#include "oxcheck/tree/answers.h"
#include "oxcheck/tree/play.h"

namespace oxcheck {

namespace {

/// A view of any element: slot 2 tells of a change, of an outline's selection; slot 3 refreshes an outline.
struct listening_view final : ox::outline_view_slots {
    std::function<void()> on_slot_2, on_slot_3;
    void selection_changed() override { on_slot_2(); }
    void refresh() override { on_slot_3(); }
    custom_pointer pointer() { return ox::make_pointer<ox::outline_view_slots>(*this); }
};

/// What has a view: an element, or an outline with its check boxes and columns; and what the view heard.
struct viewed {
    std::vector<element> parts;  ///< the first is the one with the view
    listening_view view;
    std::string before, selected_before;  ///< the answers before what is done now
    std::vector<std::string> changes;     ///< the answers when a change was told
    std::size_t selections = 0;

    bool is_table() const { return parts.front().is<ox::outline_impl>(); }
    bool has(const element& part) const {
        return std::ranges::any_of(parts, [&](const element& own) { return own.pointer == part.pointer; });
    }
    std::string selection() const { return is_table() ? selection_of(parts.front()) : ""; }
    std::string answers() const {
        std::string all;
        for (const element& each : parts) all += answers_of(each);
        return all;
    }
};

/// One dialog, every view of which listens.
class observed_dialog {
public:
    explicit observed_dialog(const std::vector<element>& dialog) {
        for (const element& each : dialog)
            if (each.outline && each.outline != each.pointer)
                table_of(each).parts.push_back(each);
            else
                all_.emplace_back().parts.push_back(each);
        for (viewed& each : all_) {
            each.view.on_slot_2 = each.view.on_slot_3 = [&each] { each.changes.push_back(each.answers()); };
            if (each.is_table()) each.view.on_slot_2 = [&each] { ++each.selections; };
            attach_views(each.parts.front(), each.view.pointer(), {});
        }
    }
    ~observed_dialog() {
        for (const viewed& each : all_) attach_views(each.parts.front(), {}, {});
    }
    observed_dialog(const observed_dialog&) = delete;
    observed_dialog& operator=(const observed_dialog&) = delete;

    /// Performs what a user does, and judges what the views heard meanwhile.
    void during(const act& done, const std::function<void()>& perform) {
        for (viewed& each : all_) {
            each.before = each.answers();
            each.selected_before = each.selection();
            each.changes.clear();
            each.selections = 0;
        }
        perform();
        for (const viewed& each : all_) judge(done, each);
    }

private:
    viewed& table_of(const element& part) {
        for (viewed& each : all_)
            if (each.parts.front().pointer == part.outline) return each;
        throw failure("a table before its columns", "a column of no table");
    }

    /// A table may be refreshed without need; whoever is acted on need not be told what the host did to it.
    static void judge(const act& done, const viewed& each) {
        const std::string name = std::string("a view of ") + each.parts.front().interface + ", after " +
                                 done.what + " of " + done.target.interface;
        const std::string after = each.answers();
        const bool told = !each.changes.empty();
        require(each.changes.size() <= 1, name + ", told once at most",
                std::to_string(each.changes.size()) + " times");
        if (told)
            require(each.changes.front() == after, name + ", told when all has changed",
                    first_difference(each.changes.front(), after));
        if (told && !each.is_table()) require(after != each.before, name + ", not told of nothing", "it is");
        if (!told && !each.has(done.target))
            require(after == each.before, name + ", told of a change", first_difference(each.before, after));
        if (!told && each.selections == 0 && !each.has(done.target))
            require(each.selection() == each.selected_before, name + ", told of a selection",
                    first_difference(each.selected_before, each.selection()));
    }

    std::deque<viewed> all_;
};

void tell_of_each_change(const subject& given) {
    script::set_stage();
    session started(given.bundle);
    bool seen = false;
    started.dialogs.on_show = [&seen](custom_pointer docker, custom_pointer box, int) {
        seen = true;
        const std::vector<element> dialog = walk(docker, box);
        observed_dialog observed(dialog);
        user acting;
        acting.around = [&observed](const act& done, const std::function<void()>& perform) {
            note("at " + done.what + " of " + done.target.interface);
            observed.during(done, perform);
        };
        return acting.operate(dialog);
    };
    started.run();
    if (!seen) throw no_occasion("the utility shows no dialog");
}

constexpr check checks[] = {
    {"elements.notifications",
     "a view is told once of each change, when all of it is done, and of nothing else", tell_of_each_change},
};

}  // namespace

std::span<const check> notification_checks() { return checks; }

}  // namespace oxcheck
