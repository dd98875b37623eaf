#pragma once
/// Light or dark.

namespace oxhost::desktop {

enum class look_kind { system, light, dark };

look_kind remembered_look();
/// Of the whole program, from now on and at the next start.
void use_look(look_kind wanted);

}  // namespace oxhost::desktop
