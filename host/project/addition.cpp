#include "project/addition.h"

#include "project/columns.h"
#include "project/schema.h"
#include "project/store.h"

namespace oxhost {

namespace {

constexpr int first_value = 5;  // the parameter after the store's own four

[[noreturn]] void cannot_add(const project& to, const sqlite::error& e) {
    refuse(to.path(), words("сцены не добавлены: ", "scenes cannot be added: ") + explain(e));
}

}  // namespace

addition::addition(project& to) : to_(to) {
    try {
        to_.store_->prepare_writing();
        change_.emplace(to_.store_->db);
        present_ = to_.store_->fields;
    } catch (const sqlite::error& e) {
        cannot_add(to_, e);
    }
    take_fields({});
}

addition::~addition() = default;

std::vector<std::string> addition::take_fields(std::span<const field> fields) {
    std::vector<std::string> names;
    std::string columns, parameters;
    try {
        for (const field& each : fields) {
            const std::string& name = names.emplace_back(add_field(to_.store_->db, present_, each, names));
            columns += ", " + as_identifier(name);
            parameters += ", ?" + std::to_string(first_value - 1 + static_cast<int>(names.size()));
        }
        insert_ = {to_.store_->db, "INSERT INTO scenes (caption, profile, proj4, geom" + columns +
                                       ") VALUES (?1, ?2, ?3, ?4" + parameters + ")"};
    } catch (const sqlite::error& e) {
        cannot_add(to_, e);
    }
    return names;
}

void addition::add(const new_scene& scene) {
    const auto bind_values = [&] {
        int parameter = first_value;
        for (const field_value& each : scene.values) bind(insert_, parameter++, each);
    };
    std::optional<line_summary> line;
    try {
        insert_.bind(1, scene.caption).bind(2, std::int64_t{scene.profile}).bind(3, scene.proj4);
        if (scene.line) {
            line = summarize(*scene.line);
            encode_line(*scene.line, buffer_);
            insert_.bind(4, std::span<const std::byte>(buffer_));
            heights_ |= line->heights;
            measures_ |= line->measures;
        } else {
            insert_.bind_null(4);
        }
        bind_values();
        insert_.run();
    } catch (const sqlite::error& e) {
        cannot_add(to_, e);
    }
    rows_.push_back({.owner = &to_,
                     .index = to_.size() + rows_.size(),
                     .row = sqlite3_last_insert_rowid(to_.store_->db.get()),
                     .caption = scene.caption,
                     .profile = scene.profile,
                     .proj4 = scene.proj4,
                     .line = line});
}

void addition::commit() {
    try {
        insert_ = {};
        to_.store_->layers.withdraw();
        allow_dimensions(to_.store_->db, heights_, measures_);
        change_->commit();
    } catch (const sqlite::error& e) {
        cannot_add(to_, e);
    }
    change_.reset();
    to_.store_->layers.withdrawn();
    to_.store_->changed = true;
    to_.store_->fields = present_;
    for (scene& row : rows_) to_.store_->scenes.push_back(std::move(row));
    rows_.clear();
}

}  // namespace oxhost
