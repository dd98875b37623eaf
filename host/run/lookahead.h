#pragma once
/// The lines that a run comes to next, transformed on other threads while the plug-in, which knows nothing of
/// it, works on the one before. Results are bit for bit those of one thread, at any number of threads.
///
/// Only the thread that owns the object touches the project, the texts and the transformations; the others
/// have copies of lines, and PROJ objects of their own. Pairs of projections with few lines are left to the
/// owner, as are pairs of which PROJ remembers what it did (transformation::can_share).

#include <memory>
#include <vector>

#include "project/project.h"

namespace oxhost::run {

class lookahead {
public:
    /// `scenes` in the order of the run; `threads` in all, the owner among them: with one there is nothing
    /// ahead.
    lookahead(project& opened, const std::vector<scene*>& scenes, unsigned threads);
    ~lookahead();
    lookahead(const lookahead&) = delete;
    lookahead& operator=(const lookahead&) = delete;

private:
    class crew;
    std::unique_ptr<crew> crew_;
};

/// As many as the machine runs at once.
unsigned all_threads();

}  // namespace oxhost::run
