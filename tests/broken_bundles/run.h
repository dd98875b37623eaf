#pragma once
/// A run over scenes, as small as the contract allows.

#include <string>
#include <vector>

namespace broken {

/// The project's profile scenes.
std::vector<void*> profiles();

/// Takes the line of every scene into another projection, and says how it went.
void run(const std::vector<void*>& scenes, const std::wstring& target);

}  // namespace broken
