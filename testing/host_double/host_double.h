#pragma once
/// A host for the checker and the tests: every call is logged, every answer scripted, every object counted.

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#if defined(_WIN32) && defined(HOST_DOUBLE_STATE)
#define HOST_DOUBLE_API __declspec(dllexport)
#elif defined(_WIN32)
#define HOST_DOUBLE_API __declspec(dllimport)
#else
#define HOST_DOUBLE_API __attribute__((visibility("default")))
#endif

namespace host_double {

using line = std::vector<std::pair<double, double>>;

struct scene {
    std::wstring caption;
    std::wstring pj4;
    line pv;
    bool has_data = true;
    bool profile = true;
    bool has_line = true;
};

struct adapter {
    void (*narrow)(const char*, void*);
    void (*wide)(const wchar_t*, void*);
    void* context;
};

struct favourite {
    std::wstring caption;
    std::wstring pj4;
};

struct HOST_DOUBLE_API state {
    bool project_open = true;
    bool project_has_scenes = true;
    bool makes_adapters = true;
    bool makes_favourites = true;
    bool null_for_empty = false;                 ///< empty texts are delivered as null
    std::vector<std::unique_ptr<scene>> scenes;  ///< a null one is a scene that the host does not hand out
    int language = 50000;
    std::wstring executable = L"/nowhere/host";
    bool answer = true;                          ///< to questions
    std::map<std::wstring, std::wstring> files;  ///< projection files by path
    std::map<std::wstring, std::wstring> crs;    ///< proj4 texts by identifier
    std::vector<favourite> favourites;           ///< the store
    std::function<void()> on_question;           ///< while a question is on screen

    std::vector<std::string> log;  ///< one line per call that changes or asks something
    std::vector<std::wstring> messages, errors, questions;
    std::vector<double> progress;
    std::map<std::string, int> live;  ///< objects by kind

    /// What no plug-in may do: functions that were handed a null which they are not made for, and exceptions
    /// that came as far as a border.
    std::vector<std::string> given_null, border_faults;

    /// The host's calls that may refuse are counted; number `refuse` (from 1) does.
    std::size_t refuse = 0;
    std::size_t asked = 0;
    bool refuses(const std::string& call);

    /// Scenes and their profile data count among the calls that may refuse; they do so unlogged.
    bool scenes_refuse = false;
    bool scene_refuses(const std::string& call);

    std::string refused;               ///< the call that did
    std::function<void()> on_refusal;  ///< while it does

    scene& add(std::wstring caption, std::wstring pj4, line pv = {{1, 2}, {3, 4}});
    void deliver(void* adapter_handle, const std::wstring& text);
    int alive() const;
    bool logged(const std::string& call) const;

private:
    bool counts_as_refused(const std::string& call);
};

/// The one host of the process.
HOST_DOUBLE_API state& host();
/// A fresh host; fails nothing, knows nothing.
HOST_DOUBLE_API void reset();

/// Whether none of the arguments is null; else `function` takes that down, and does nothing.
HOST_DOUBLE_API bool are_given(const char* function, std::initializer_list<const void*> arguments);

/// Of ASCII texts, for the log.
inline std::string narrow(const std::wstring& text) {
    std::string result;
    for (const wchar_t c : text) result += c < 128 ? static_cast<char>(c) : '?';
    return result;
}

/// Every reprojection of this host moves a vertex by that much.
inline constexpr double shift_x = 100;
inline constexpr double shift_y = 200;

}  // namespace host_double
