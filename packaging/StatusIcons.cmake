# Makes the ten status images from the five drawings.
set(BRISEL_STATUS_COLOURS grey green blue orange red)

# On a Mac, `dark` and `light` name the menu bar; the ink is the opposite.
set(INK_macos_dark "#f5f5f5")
set(INK_macos_light "#242424")
set(INK_macos_dark_grey "#c0c0c0")
set(INK_macos_light_grey "#636363")
set(ACCENT_macos_dark_green "#57d977")
set(ACCENT_macos_light_green "#14782f")
set(ACCENT_macos_dark_blue "#6cb4ff")
set(ACCENT_macos_light_blue "#0a5cc8")
set(ACCENT_macos_dark_orange "#ffb347")
set(ACCENT_macos_light_orange "#a85200")
set(ACCENT_macos_dark_red "#ff7a70")
set(ACCENT_macos_light_red "#c3201c")

# On Linux they name the applications' colour scheme, and a panel may have the other: these colours
# contrast with both.
foreach(bar dark light)
  set(INK_linux_${bar} "#7b7b7b")
  set(ACCENT_linux_${bar}_green "#148d3d")
  set(ACCENT_linux_${bar}_blue "#1878ec")
  set(ACCENT_linux_${bar}_orange "#c85a00")
  set(ACCENT_linux_${bar}_red "#e5382b")
endforeach()

# make_status_icons(FOLDER PLATFORM ORIGIN SIDE): empties FOLDER and writes
# brisel-status-COLOUR-BAR.svg for each colour and bar: the square of the drawing that begins at
# ORIGIN and is SIDE wide. The drawings reach from 1 to 15.
function(make_status_icons folder platform ORIGIN SIDE)
  file(REMOVE_RECURSE ${folder})
  foreach(colour IN LISTS BRISEL_STATUS_COLOURS)
    foreach(bar dark light)
      set(INK ${INK_${platform}_${bar}})
      if(DEFINED INK_${platform}_${bar}_${colour})
        set(INK ${INK_${platform}_${bar}_${colour}})
      endif()
      set(ACCENT ${ACCENT_${platform}_${bar}_${colour}})
      configure_file(${PROJECT_SOURCE_DIR}/resources/status/${colour}.svg.in
                     ${folder}/brisel-status-${colour}-${bar}.svg @ONLY)
    endforeach()
  endforeach()
endfunction()
