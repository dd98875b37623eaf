#include "run/lookahead.h"

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <span>
#include <thread>

#include "geodesy/reprojector.h"
#include "geodesy/way_back.h"

namespace oxhost::run {

namespace {

/// Held ahead: enough for the others while the owner waits for the disk, and little memory.
constexpr std::size_t most_ahead = 512, most_vertices_ahead = 100'000;
/// Vertices of one pair, on lines one after the other, before the others join: a thread's PROJ objects cost
/// as much.
constexpr std::size_t vertices_to_begin = 1'000;
/// Shorter lines cost less than the handing over.
constexpr std::size_t short_line = 16;
/// Vertices that one thread takes at a time.
constexpr std::size_t share = 4'096;

}  // namespace

class lookahead::crew {
public:
    crew(project& opened, const std::vector<scene*>& scenes, unsigned threads)
        : project_(opened), scenes_(scenes), lanes_(threads) {
        for (unsigned i = 1; i < threads; ++i) threads_.emplace_back([this, i] { work(lanes_[i]); });
    }

    ~crew() {
        {
            const std::lock_guard held(guard_);
            ending_ = true;
        }
        more_.notify_all();
        for (std::thread& each : threads_) each.join();
    }

    /// For the scene whose update is open; nothing when its line is the owner's to transform.
    std::optional<line_image> take(const polyline& line, const transformation& way);

private:
    using lane = std::optional<transformation::lane>;

    struct task {
        const scene* subject;
        polyline line;
        line_image image{line, {}};
        std::size_t shares = (line.size() + share - 1) / share;
        std::size_t begun = 0, ended = 0;  ///< of the shares
        bool done = false;
    };

    void work(const lane& own);
    void transform_share(const lane& own, std::unique_lock<std::mutex>& held);
    bool is_next(const scene& subject);
    void begin_streak(const scene& subject, const transformation& way);
    bool make_lanes(const transformation& way);
    void fill();
    void add(std::vector<task> added);
    std::optional<line_image> take_first();

    project& project_;
    const std::vector<scene*>& scenes_;

    // The owner's: what the last lines had in common, and what comes next.
    std::string stored_text_, source_, target_;
    bool has_return_ = true;
    bool ready_ = false;     ///< the lanes are made for the pair
    std::size_t seen_ = 0;   ///< vertices of the streak that nobody looked ahead to
    std::size_t next_ = 0;   ///< place in `scenes_` of the first that is neither taken nor a task
    std::size_t ahead_ = 0;  ///< vertices of the tasks

    std::mutex guard_;  ///< of all below but `lanes_`, which change while nothing is in hand
    std::condition_variable more_, done_;
    std::deque<task> tasks_;   ///< in the order of the run
    std::size_t waiting_ = 0;  ///< the first of the tasks with a share that nobody has begun
    std::size_t in_hand_ = 0;
    bool ending_ = false;
    std::vector<lane> lanes_;  ///< the owner's first
    std::vector<std::thread> threads_;
};

std::optional<line_image> lookahead::crew::take(const polyline& line, const transformation& way) {
    scene* subject = project_.updated_scene();
    if (line.size() < short_line || !subject || !way.can_share()) return {};
    const bool same_pair =
        subject->proj4 == stored_text_ && way.source().text == source_ && way.target().text == target_;
    const bool expected = same_pair && !tasks_.empty() && tasks_.front().subject == subject;
    if (!expected || tasks_.front().line != line) {
        if (!same_pair || !tasks_.empty() || !is_next(*subject)) begin_streak(*subject, way);
        seen_ += line.size();
        if (seen_ < vertices_to_begin) return {};
        if (!ready_) ready_ = make_lanes(way);
        if (!ready_) return {};
        add({{subject, line}});
    }
    if (ahead_ <= most_vertices_ahead / 2) fill();
    return take_first();
}

/// The next of the run that is worth a look ahead?
bool lookahead::crew::is_next(const scene& subject) {
    const auto is_short = [](const scene* each) { return !each->line || each->line->vertices < short_line; };
    while (next_ < scenes_.size() && is_short(scenes_[next_])) ++next_;
    const bool next = next_ < scenes_.size() && scenes_[next_] == &subject;
    next_ += next ? 1 : 0;
    return next;
}

/// What was begun for another streak is given up.
void lookahead::crew::begin_streak(const scene& subject, const transformation& way) {
    std::unique_lock held(guard_);
    waiting_ = tasks_.size();
    done_.wait(held, [this] { return in_hand_ == 0; });
    tasks_.clear();
    waiting_ = 0;
    const bool same_pair = way.source().text == source_ && way.target().text == target_;
    ready_ = ready_ && same_pair;
    stored_text_ = subject.proj4;
    source_ = way.source().text;
    target_ = way.target().text;
    has_return_ = way.has_return();
    seen_ = ahead_ = 0;
    const auto found = std::ranges::lower_bound(scenes_, subject.index, {}, &scene::index);
    next_ = static_cast<std::size_t>(found - scenes_.begin()) + 1;
}

bool lookahead::crew::make_lanes(const transformation& way) {
    for (lane& each : lanes_) {
        each = transformation::lane::of(way);
        if (!each) return false;
    }
    return true;
}

/// Up to the first scene that has another projection or no readable line.
void lookahead::crew::fill() {
    std::vector<task> added;
    std::size_t vertices = ahead_;
    for (; tasks_.size() + added.size() < most_ahead && next_ < scenes_.size(); ++next_) {
        scene& subject = *scenes_[next_];
        if (subject.proj4 != stored_text_ || !subject.line) break;
        if (subject.line->vertices < short_line) continue;
        vertices += subject.line->vertices;
        if (vertices > most_vertices_ahead) break;
        const section_line* line = nullptr;
        try {
            line = project_.lend_line(subject);
        } catch (const project_error&) {  // told when the scene itself is asked for
            break;
        }
        added.push_back({&subject, line->xy});
    }
    add(std::move(added));
}

void lookahead::crew::add(std::vector<task> added) {
    if (added.empty()) return;
    for (const task& each : added) ahead_ += each.line.size();
    {
        const std::lock_guard held(guard_);
        std::ranges::move(added, std::back_inserter(tasks_));
    }
    more_.notify_all();
}

std::optional<line_image> lookahead::crew::take_first() {
    std::unique_lock held(guard_);
    while (!tasks_.front().done) {
        if (waiting_ < tasks_.size())
            transform_share(lanes_[0], held);
        else
            done_.wait(held);
    }
    line_image image = std::move(tasks_.front().image);
    ahead_ -= tasks_.front().line.size();
    tasks_.pop_front();
    --waiting_;
    return image;
}

void lookahead::crew::work(const lane& own) {
    std::unique_lock held(guard_);
    for (;;) {
        more_.wait(held, [this] { return ending_ || waiting_ < tasks_.size(); });
        if (ending_) return;
        transform_share(own, held);
    }
}

/// Lets go of the guard meanwhile: a task that is begun stays where it is until it is done.
void lookahead::crew::transform_share(const lane& own, std::unique_lock<std::mutex>& held) {
    task& chosen = tasks_[waiting_];
    const std::size_t first = chosen.begun++ * share;
    if (chosen.begun == chosen.shares) ++waiting_;
    ++in_hand_;
    held.unlock();
    const std::span<point> places(chosen.image.places);
    own->transform(places.subspan(first, std::min(share, places.size() - first)));
    held.lock();
    if (++chosen.ended == chosen.shares) {
        held.unlock();
        if (has_return_) {
            chosen.image.returned = vertices_at(chosen.image.places, tested_vertices(chosen.line));
            own->bring_back(chosen.image.returned);
        }
        held.lock();
        chosen.done = true;
    }
    --in_hand_;
    done_.notify_all();
}

lookahead::lookahead(project& opened, const std::vector<scene*>& scenes, unsigned threads) {
    if (threads < 2) return;
    crew_ = std::make_unique<crew>(opened, scenes, threads);
    use_images([this](const polyline& line, const transformation& way) { return crew_->take(line, way); });
}

lookahead::~lookahead() { use_images({}); }

unsigned all_threads() { return std::max(1U, std::thread::hardware_concurrency()); }

}  // namespace oxhost::run
