# Brisel.app's identifiers and files, and their places in Contents/.
set(BRISEL_MINIMUM_SYSTEM 11.0)
set(BRISEL_IDENTIFIER org.brisel.Brisel)
set(BRISEL_HELPER_IDENTIFIER org.brisel.BriselHelper)
set(BRISEL_HELPER_FOLDER Library/LoginItems)

set(BRISEL_MAC_RESOURCES ${PROJECT_SOURCE_DIR}/resources/macos)
set(BRISEL_NIB_SOURCE ${BRISEL_MAC_RESOURCES}/MainMenu.xib)
set(BRISEL_ENTITLEMENTS ${BRISEL_MAC_RESOURCES}/Brisel.entitlements)
# Copied to Resources unchanged; string tables keep their .lproj folders.
file(GLOB BRISEL_BUNDLE_FILES CONFIGURE_DEPENDS ${BRISEL_MAC_RESOURCES}/images/*.png)
list(APPEND BRISEL_BUNDLE_FILES
  ${BRISEL_MAC_RESOURCES}/Brisel.icns ${BRISEL_MAC_RESOURCES}/Credits.rtf)
file(GLOB BRISEL_BUNDLE_TABLES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/*.lproj/*.strings)

# write_property_list(TEMPLATE OUTPUT NAME IDENTIFIER): writes an application's Info.plist.
function(write_property_list template output NAME IDENTIFIER)
  set(COPYRIGHT "Copyright © 2026 The Brisel developers")
  configure_file(${template} ${output} @ONLY)
endfunction()

# write_property_lists(FOLDER): writes Brisel.plist and BriselHelper.plist.
function(write_property_lists folder)
  write_property_list(${BRISEL_MAC_RESOURCES}/Info.plist.in ${folder}/Brisel.plist
                      Brisel ${BRISEL_IDENTIFIER})
  write_property_list(${BRISEL_MAC_RESOURCES}/BriselHelper-Info.plist.in ${folder}/BriselHelper.plist
                      BriselHelper ${BRISEL_HELPER_IDENTIFIER})
endfunction()

# bundle_folder(VARIABLE FILE): the folder in Contents/ for a file or table.
function(bundle_folder variable file)
  set(folder Resources)
  if(file MATCHES "/([^/]+\\.lproj)/[^/]+$")
    set(folder Resources/${CMAKE_MATCH_1})
  endif()
  set(${variable} ${folder} PARENT_SCOPE)
endfunction()

# bundle_contents(VARIABLE): the paths in Brisel.app of all files but the signatures.
function(bundle_contents variable)
  set(helper Contents/${BRISEL_HELPER_FOLDER}/BriselHelper.app/Contents)
  set(paths Contents/Info.plist Contents/MacOS/Brisel ${helper}/Info.plist
      ${helper}/MacOS/BriselHelper)
  if(BRISEL_NIB_SOURCE)
    list(APPEND paths Contents/Resources/MainMenu.nib)
  endif()
  foreach(file IN LISTS BRISEL_BUNDLE_FILES BRISEL_BUNDLE_TABLES)
    bundle_folder(folder ${file})
    get_filename_component(name ${file} NAME)
    list(APPEND paths Contents/${folder}/${name})
  endforeach()
  list(SORT paths)
  set(${variable} ${paths} PARENT_SCOPE)
endfunction()

# write_bundle_contents(FILE): writes these paths, one per line.
function(write_bundle_contents file)
  bundle_contents(paths)
  list(JOIN paths "\n" lines)
  file(CONFIGURE OUTPUT ${file} CONTENT "${lines}\n")
endfunction()
