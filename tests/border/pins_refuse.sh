#!/usr/bin/env bash
# The pins stop what nothing else would: operations of equal signature that change places, one that is forgotten or
# has another signature, another version, on either side of the border. Each fault is made on a copy of border/,
# which then must not compile:  pins_refuse.sh COMPILER SOURCE WORK
set -euo pipefail
compiler=$1 source=$2 work=$3

compiles() {
    local pins=$work/border/pins
    "$compiler" -std=c++20 -fsyntax-only "-I$work" '-DOX_HOST_NAMESPACE=L"x"' "$pins"/*_pins.cpp >"$work/said" 2>&1
}

# fault WHAT HEADER SED...: makes it, expects a refusal by the pins' own words or the compiler's, takes it back.
passed=0 failed=0
fault() {
    local what=$1 header=$work/border/$2
    shift 2
    cp "$header" "$work/kept"
    sed -E -i "$@" "$header"
    if cmp -s "$header" "$work/kept"; then
        echo "$what: nothing to change"; failed=$((failed + 1))
    elif compiles; then
        echo "$what: let through"; failed=$((failed + 1))
    else
        passed=$((passed + 1))
    fi
    cp "$work/kept" "$header"
}

# exchange HEADER BINDING FIRST SECOND: two operations change their slots.
exchange() {
    fault "$2: $3 and $4 exchanged" "interfaces/$1.h" \
        "s/&$2::$3\\b/\\&$2::=/g; s/&$2::$4\\b/\\&$2::$3/g; s/&$2::=/\\&$2::$4/g"
}

rm -rf "$work"
mkdir -p "$work"
cp -r "$source/border" "$work/"
compiles || { cat "$work/said"; echo "the border does not compile as it is"; exit 1; }

cd "$work/border"
functions() { grep -ohE "$1" "${@:2}" | grep -oE 'ox_[a-z0-9_]+$' | sort; }
diff <(functions 'OX_HOST_API [^(]*' host_api/oxk_*.h) <(functions 'OX_PIN_FUNCTION.ox_[a-z0-9_]+' pins/*.cpp) ||
    { echo "host functions and pins differ"; exit 1; }

exchange layouts grid_layout_impl column_count row_count
exchange layouts grid_layout_impl column_expands row_expands
exchange layouts grid_layout_impl column_value row_value
exchange layouts grid_layout_impl column_shown row_shown
exchange layouts stack_layout_impl child_count current
exchange layouts groupbox_impl visit_caption visit_second_text
exchange lifetime referent_impl add_referrer owner
exchange lifetime referent_impl owner self
exchange dialogs utility_impl run set_host_data
exchange dialogs utility_impl visit_caption visit_icon
exchange dialogs button_box_impl attach_first_view attach_second_view
exchange dialogs button_box_impl default_index second_index
exchange controls button_impl visit_caption visit_hint
exchange controls button_impl flag_2 flag_4
exchange controls floating_input_impl minimum maximum
exchange controls dropdown_impl item_count current
exchange controls multiline_output_impl first_value second_value
exchange values masked_bitmap_impl visit_colour visit_mask
exchange values bitmap_impl width height
exchange tools action_tool_impl visit_caption visit_hint
exchange outlines outline_view_slots selection_changed refresh
exchange outlines outline_impl flag_29 flag_30

fault "a forgotten operation of a label" interfaces/controls.h 's/operations<&label_impl::enabled, /operations</'
fault "a forgotten slot of a text column" interfaces/outlines.h 's/(string_outline_column_impl::reserved), 11/\1, 10/'
fault "another slot of an element kind" element_kinds.inc 's/(input), 7/\1, 8/'
fault "another version of a label" interface_names.inc 's/(label), 2\)/\1, 3)/'
fault "a forgotten operation in C" c/ox_controls.h '/\(\*maximum\)/d'
fault "exchanged operations in C" c/ox_layouts.h 's/\*column_count/*=/; s/\*row_count/*column_count/; s/\*=/*row_count/'
fault "another argument in C" c/ox_layouts.h 's/(\*visit_child\)\(const void\* table, void\* object, )uint32_t/\1int32_t/'
fault "another argument of a host function" host_api/oxk_prg.h 's/(destination, )const void/\1void/'

echo "$passed faults refused, $failed let through"
[[ $failed == 0 ]]
