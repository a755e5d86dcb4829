#!/usr/bin/env bash
# Regenerates the LED marker icons (five shapes in nine colours) and the
# resource list that compiles them into the library. Not run by the build:
# run it by hand after changing a shape or a colour, and commit the output.
#
# Every marker is drawn on a 16 x 16 canvas: a vertical gradient from a light
# tint at the top to the base colour, a one-pixel darker outline, and a soft
# highlight near the top so that the lamps read as lit objects at small sizes.
set -euo pipefail
cd "$(dirname "$0")"

# name base light outline
colours=(
    "red     #d8302b #f58a7d #86140f"
    "green   #2ea44f #86e09b #145c28"
    "yellow  #f2c31b #fde98b #8a6a00"
    "grey    #9a9ea3 #d6d9dc #55595e"
    "orange  #f07d19 #fbbf7c #8a4000"
    "purple  #8b45b0 #c99ae0 #4a1d63"
    "blue    #2a78d6 #8cc0f5 #10407c"
    "black   #2a2b2d #6c6e72 #000000"
    "white   #eeeeee #ffffff #8c8f94"
)

# The body of each shape; "round" is a square with rounded corners so that it
# stays distinct from the circle, "triangR" is the triangle turned upside down.
shape_body() {
    case "$1" in
    circle) echo '<circle cx="8" cy="8" r="7" fill="url(#body)" stroke="OUTLINE" stroke-width="1"/>' ;;
    square) echo '<rect x="1.5" y="1.5" width="13" height="13" fill="url(#body)" stroke="OUTLINE" stroke-width="1"/>' ;;
    round) echo '<rect x="1.5" y="1.5" width="13" height="13" rx="3.5" ry="3.5" fill="url(#body)" stroke="OUTLINE" stroke-width="1"/>' ;;
    triang) echo '<polygon points="8,1.2 15,14.5 1,14.5" fill="url(#body)" stroke="OUTLINE" stroke-width="1" stroke-linejoin="round"/>' ;;
    triangR) echo '<polygon points="1,1.5 15,1.5 8,14.8" fill="url(#body)" stroke="OUTLINE" stroke-width="1" stroke-linejoin="round"/>' ;;
    esac
}

shape_highlight() {
    case "$1" in
    circle) echo '<ellipse cx="8" cy="5.2" rx="4.2" ry="2.4" fill="#ffffff" fill-opacity="0.35"/>' ;;
    square | round) echo '<rect x="3.5" y="3" width="9" height="3.2" rx="1.5" ry="1.5" fill="#ffffff" fill-opacity="0.3"/>' ;;
    triang) echo '<polygon points="8,4.5 10.2,8.6 5.8,8.6" fill="#ffffff" fill-opacity="0.3"/>' ;;
    triangR) echo '<rect x="4.5" y="3" width="7" height="2.2" rx="1" ry="1" fill="#ffffff" fill-opacity="0.3"/>' ;;
    esac
}

write_marker() {
    local shape=$1 name=$2 base=$3 light=$4 outline=$5
    local body
    body=$(shape_body "$shape")
    cat >"${shape}_${name}.svg" <<SVG
<?xml version="1.0" encoding="UTF-8"?>
<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" width="16" height="16" viewBox="0 0 16 16">
  <defs>
    <linearGradient id="body" x1="0" y1="0" x2="0" y2="16" gradientUnits="userSpaceOnUse">
      <stop offset="0" stop-color="${light}"/>
      <stop offset="0.6" stop-color="${base}"/>
      <stop offset="1" stop-color="${base}"/>
    </linearGradient>
  </defs>
  ${body//OUTLINE/$outline}
  $(shape_highlight "$shape")
</svg>
SVG
}

shapes=(circle square triang round triangR)
{
    echo '<!DOCTYPE RCC>'
    echo '<RCC version="1.0">'
    echo '  <qresource prefix="/resources">'
    for shape in "${shapes[@]}"; do
        for entry in "${colours[@]}"; do
            read -r name base light outline <<<"$entry"
            write_marker "$shape" "$name" "$base" "$light" "$outline"
            echo "    <file>${shape}_${name}.svg</file>"
        done
    done
    echo '  </qresource>'
    echo '</RCC>'
} >uxQt4Ext.qrc
