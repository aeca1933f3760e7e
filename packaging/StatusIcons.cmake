# Makes the ten status images from the five drawings.
set(BRISEL_STATUS_COLOURS grey green blue orange red)

# `dark` and `light` name the menu bar; the ink is the opposite.
set(INK_dark "#f5f5f5")
set(INK_light "#242424")
set(INK_grey_dark "#c0c0c0")
set(INK_grey_light "#636363")
set(ACCENT_green_dark "#57d977")
set(ACCENT_green_light "#14782f")
set(ACCENT_blue_dark "#6cb4ff")
set(ACCENT_blue_light "#0a5cc8")
set(ACCENT_orange_dark "#ffb347")
set(ACCENT_orange_light "#a85200")
set(ACCENT_red_dark "#ff7a70")
set(ACCENT_red_light "#c3201c")

# make_status_icons(FOLDER): empties FOLDER and writes brisel-status-COLOUR-BAR.svg for each colour
# and bar.
function(make_status_icons folder)
  file(REMOVE_RECURSE ${folder})
  foreach(colour IN LISTS BRISEL_STATUS_COLOURS)
    foreach(bar dark light)
      set(INK ${INK_${bar}})
      if(DEFINED INK_${colour}_${bar})
        set(INK ${INK_${colour}_${bar}})
      endif()
      set(ACCENT ${ACCENT_${colour}_${bar}})
      configure_file(${PROJECT_SOURCE_DIR}/resources/status/${colour}.svg.in
                     ${folder}/brisel-status-${colour}-${bar}.svg @ONLY)
    endforeach()
  endforeach()
endfunction()
