#pragma once
/// The profile scenes of the current project, as the utility's dialog lists them. [ui]

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace ox::prf_reproj {

/// A profile scene. The handle is the host's and valid while the project stays as it is, which the
/// modal dialog guarantees.
struct prf_row {
    void* scene = nullptr;
    bool checked = false;
    bool selected = false;
    std::wstring caption;
    std::wstring pj4;      ///< the scene's own projection when the list was filled; may be empty
    bool differs = false;  ///< there is a target, and the scene's projection is another one
};

/// What one run works on.
struct prf_reproj_job {
    std::wstring target_pj4;    ///< empty: the projections are to be reset
    std::vector<void*> scenes;  ///< of the checked rows, in the project's order
};

/// Caption and proj4 text of a projection that the user may choose.
using projection_suggestion = std::pair<std::wstring, std::wstring>;

/// The rows, the target they are compared with, and who is told of changes.
struct prf_list {
    std::vector<prf_row> rows;  ///< in the order of the project's scenes
    std::wstring target_pj4;
    std::function<void()> on_changed;  ///< the rows must be drawn anew
    std::function<void(std::vector<projection_suggestion>)> on_suggestions;

    /// Reads the scenes anew; check marks and selection are lost, the target stays. A null collection has
    /// no scenes.
    void fill(void* scene_collection);
    /// `fill`, then offers the distinct projections of the rows, and no projection, as suggestions.
    void rebuild(void* scene_collection);
    void set_target(std::wstring pj4);
    prf_reproj_job make_job() const;

    /// Who is told may have himself replaced meanwhile.
    void notify() const {
        if (const auto told = on_changed) told();
    }

private:
    bool differs(const std::wstring& pj4) const;
    std::vector<projection_suggestion> suggestions() const;
};

/// The scene collection of the project that is open in the host; null while none is.
void* current_scenes();

/// Profile data of a scene that is a profile, else null.
void* profile_data(void* scene);
/// The scene's own proj4 text.
std::wstring projection_of(void* data);

}  // namespace ox::prf_reproj
