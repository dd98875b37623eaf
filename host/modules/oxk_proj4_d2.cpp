/// The C functions of the projection module: texts come in wide and go out through adapters, lines are
/// `section_line`s behind "pv", and what cannot be answered through the function is left in the host's core.

#include "border/host_api/oxk_proj4_d2.h"

#include <iostream>
#include <memory>
#include <stdexcept>

#include "base/files.h"
#include "base/language.h"
#include "base/memo.h"
#include "geodesy/crs.h"
#include "geodesy/crs_import.h"
#include "geodesy/description.h"
#include "geodesy/favourites.h"
#include "geodesy/projection_files.h"
#include "geodesy/reprojector.h"
#include "geodesy/transformation.h"
#include "session/border.h"
#include "session/interruption.h"
#include "session/journal.h"

using namespace oxhost;

namespace {

/// What "rpj" points at: empty until a pair of texts was accepted.
struct reprojector {
    std::shared_ptr<const transformation> work;
};

/// A scene whose update began after the wish to end, or, outside an update, any.
bool is_declined() {
    const auto* update = journal::instance().current();
    return update ? update->declined : ending_wished();
}

favourite_list* as_list(void* list) { return static_cast<favourite_list*>(list); }

/// A file function has nowhere to answer an error, so the journal tells how it ended.
template <class Work>
void with_file(Work&& work, const char* function = __builtin_FUNCTION()) {
    const auto work_and_tell = [&] {
        std::optional<std::string> failure;
        try {
            work();
        } catch (const file_error& error) {
            failure = error.what();
        }
        journal::instance().file_function_ended(std::move(failure));
    };
    at_border(work_and_tell, function);
}

void complain(const std::string& line) { std::cerr << "oxhost: " << line << '\n'; }

/// Shows the favourite at `index` to `use`, if there is one.
template <class Use>
void with_favourite(void* list, std::int32_t index, Use&& use, const char* function = __builtin_FUNCTION()) {
    const auto use_if_any = [&] {
        const favourite* item = list ? as_list(list)->at(index) : nullptr;
        if (item) use(*item);
    };
    at_border(use_if_any, function);
}

}  // namespace

bool ox_pj4_equal_w(const wchar_t* a, const wchar_t* b) {
    return at_border([&] {
        // converting the texts would cost more than the judgement
        static memo<bool, wchar_t> judged(32768);
        return judged.of(a ? a : L"", b ? b : L"", [&] { return equal(to_utf8(a), to_utf8(b)); });
    });
}

void ox_pj4_get_text_w(const wchar_t* proj4, void* adapter) {
    at_border([&] { deliver(adapter, describe(to_utf8(proj4), current_language())); });
}

void ox_pj4_get_short_text_w(const wchar_t* proj4, void* adapter) {
    at_border([&] { deliver(adapter, short_description(to_utf8(proj4), current_language())); });
}

void ox_pj4_import_crs(const wchar_t* identifier, void* adapter) {
    at_border([&] {
        if (const auto known = import_crs(to_utf8(identifier))) deliver(adapter, *known);
    });
}

void ox_pj4_load_simple_w(const wchar_t* path, void* adapter) {
    with_file([&] { deliver(adapter, load_pj4(to_utf8(path))); });
}

void ox_pj4_import_esri(const wchar_t* path, void* adapter) {
    with_file([&] { deliver(adapter, load_prj(to_utf8(path))); });
}

void ox_pj4_save_simple_w(const wchar_t* path, const wchar_t* proj4) {
    with_file([&] { save_pj4(to_utf8(path), to_utf8(proj4)); });
}

void ox_pj4_export_esri_prj(const wchar_t* proj4, const wchar_t* path) {
    with_file([&] { save_prj(to_utf8(path), to_utf8(proj4)); });
}

void* ox_pj4_fav_list_create(void) {
    return at_border([]() -> void* { return std::make_unique<favourite_list>().release(); });
}

void ox_pj4_fav_list_destroy(void* list) { std::unique_ptr<favourite_list> owner(as_list(list)); }

void ox_pj4_fav_list_deserialize(void* list) {
    at_border([&] {
        if (!list) return;
        if (const auto complaint = as_list(list)->load()) complain(*complaint);
    });
}

void ox_pj4_fav_list_serialize(void* list) {
    at_border([&] {
        try {
            if (list) as_list(list)->save();
        } catch (const file_error& error) {
            complain(error.what());
            journal::instance().file_function_ended(error.what());
        }
    });
}

std::int32_t ox_pj4_fav_list_get_count(void* list) { return list ? as_list(list)->count() : 0; }

void ox_pj4_fav_add_item(void* list, const wchar_t* caption, const wchar_t* proj4) {
    at_border([&] {
        if (list) as_list(list)->add({to_utf8(caption), to_utf8(proj4)});
    });
}

void ox_pj4_fav_del_item(void* list, std::int32_t index) {
    at_border([&] {
        if (list) as_list(list)->remove(index);
    });
}

void ox_pj4_fav_get_caption(void* list, std::int32_t index, void* adapter) {
    with_favourite(list, index, [&](const favourite& item) { deliver(adapter, item.caption); });
}

void ox_pj4_fav_set_caption(void* list, std::int32_t index, const wchar_t* caption) {
    at_border([&] {
        if (list) as_list(list)->rename(index, to_utf8(caption));
    });
}

void ox_pj4_fav_get_pj4str(void* list, std::int32_t index, void* adapter) {
    with_favourite(list, index, [&](const favourite& item) { deliver(adapter, item.proj4); });
}

void* ox_rpj_d2_create(void) {
    return at_border([]() -> void* { return std::make_unique<reprojector>().release(); });
}

void ox_rpj_d2_destroy(void* rpj) { std::unique_ptr<reprojector> owner(static_cast<reprojector*>(rpj)); }

bool ox_rpj_d2_init_w(void* rpj, const wchar_t* source, const wchar_t* target) {
    return at_border([&] {
        if (!rpj || is_declined()) return false;
        auto& work = static_cast<reprojector*>(rpj)->work;
        work.reset();
        std::optional<std::string> refusal = refusal_of_target(to_utf8(target));
        try {
            if (!refusal) work = transformation::between(to_utf8(source), to_utf8(target));
        } catch (const std::invalid_argument& refused) {
            refusal = refused.what();
        }
        auto* update = journal::instance().current();
        if (update && refusal) update->setup_failure = std::move(refusal);
        return work != nullptr;
    });
}

bool ox_rpj_d2_rpj_is_needed(void* rpj) {
    const auto* reprojection = static_cast<reprojector*>(rpj);
    return reprojection && reprojection->work && reprojection->work->is_needed();
}

bool ox_rpj_d2_apply_pv(void* rpj, void* pv) {
    return at_border([&] {
        const auto* reprojection = static_cast<reprojector*>(rpj);
        if (!reprojection || !reprojection->work || !pv) return false;
        const auto done = reproject(*static_cast<section_line*>(pv), *reprojection->work);
        if (auto* update = journal::instance().current()) {
            update->transform_failure = done.failure;
            update->return_error = done.return_error;
            update->added_vertices = done.added_vertices;
        }
        return !done.failure;
    });
}
