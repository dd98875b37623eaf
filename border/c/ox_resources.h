#pragma once
/// How texts and pictures are named.
///
/// A resource id is a signed 32-bit number. Above 0 it names a text or picture of the bundle itself; below 0
/// it names number -id of the host's basic module; 0 is none. A bundle's own ids are looked up in this order:
///   1. by the host's localizer, if there is one (ox_services.h), whose answer is final
///   2. in the bundle under id + ox_res_get_lng(), the offset of the user's language
///   3. in the bundle under the id itself
/// Those of the basic module are looked up there by steps 2 and 3. They are string resources and bitmaps of
/// oxk_basic.dll on Windows; elsewhere they stand in the folder "oxk_basic.res" beside the file that exports
/// ox_res_get_lng: "strings.txt" (lines of number, tab, text in UTF-8, "\n" for a line break) and
/// "bitmap_<number>.bmp".

/// Offsets that ox_res_get_lng answers.
#define OX_LANGUAGE_RUSSIAN 0
#define OX_LANGUAGE_ENGLISH 50000

/// Texts of the basic module that bundles use as captions; as resource ids they are negative.
#define OX_BASIC_TEXT_YES 99
#define OX_BASIC_TEXT_NO 100
#define OX_BASIC_TEXT_APPLY 101
#define OX_BASIC_TEXT_CLOSE 102
#define OX_BASIC_TEXT_HELP 103
#define OX_BASIC_TEXT_SUGGESTIONS 6214
#define OX_BASIC_TEXT_NO_PROJECTION 6215
#define OX_BASIC_TEXT_PROJECTION 6216

/// Bitmaps of the basic module.
#define OX_BASIC_BITMAP_APPEND 71
#define OX_BASIC_BITMAP_REMOVE 72
#define OX_BASIC_BITMAP_SELECT_ALL 118
#define OX_BASIC_BITMAP_UNSELECT_ALL 119
#define OX_BASIC_BITMAP_INVERT_SELECTION 120
