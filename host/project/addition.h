#pragma once
/// Scenes on their way into a project: all of them at `commit`, none without it.
///
///     addition added(project);
///     added.take_fields(fields);          // what the values of the scenes that follow are
///     while (...) added.add(scene);
///     added.commit();
///
/// The project must not be changed otherwise meanwhile. Throws project_error. [ui]

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "project/fields.h"
#include "project/project.h"
#include "project/sqlite.h"

namespace oxhost {

class addition {
public:
    explicit addition(project& to);
    ~addition();
    addition(const addition&) = delete;
    addition& operator=(const addition&) = delete;

    /// Sees to columns for the fields. One of the same name and type is shared, a name that stands for
    /// something else gets a number. Answers the columns' names, as many as there are fields.
    std::vector<std::string> take_fields(std::span<const field> fields);
    void add(const new_scene& scene);
    void commit();

    std::size_t count() const { return rows_.size(); }

private:
    project& to_;
    std::optional<sqlite::transaction> change_;
    std::vector<field> present_;  ///< columns of the table by now
    sqlite::statement insert_;
    std::vector<scene> rows_;
    std::vector<std::byte> buffer_;
    bool heights_ = false, measures_ = false;
};

}  // namespace oxhost
