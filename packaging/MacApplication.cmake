# Builds, signs and checks Brisel.app and its disk image.
option(BRISEL_MAC_APPLICATION "Build Brisel.app, which takes Xcode" ON)
if(NOT BRISEL_MAC_APPLICATION)
  return()
endif()
include(MacBundle.cmake)

if(BRISEL_MACOS_SDK)
  # On Linux, the variables name these tools.
  if(NOT BRISEL_IBTOOL)
    message(STATUS "BRISEL_IBTOOL names no ibtool: Brisel.app gets no nib and cannot start")
    set(BRISEL_NIB_SOURCE "")
  endif()
  if(NOT BRISEL_CODESIGN)
    message(STATUS "BRISEL_CODESIGN names no codesign: Brisel.app is left unsigned")
  endif()
else()
  find_program(BRISEL_CODESIGN codesign REQUIRED)
  if(NOT BRISEL_IBTOOL)
    # Every Mac has an `ibtool`, but without Xcode it only fails.
    execute_process(COMMAND xcrun --find ibtool RESULT_VARIABLE failure OUTPUT_VARIABLE path
                    OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    if(failure)
      message(FATAL_ERROR "ibtool is missing, which compiles the nib: it is a part of Xcode, not "
        "of the Command Line Tools. Install Xcode and choose it by "
        "`sudo xcode-select --switch /Applications/Xcode.app`; or build all but Brisel.app, with "
        "-DBRISEL_MAC_APPLICATION=OFF.")
    endif()
    set(BRISEL_IBTOOL ${path} CACHE FILEPATH "What compiles the nib")
  endif()
endif()

set(BRISEL_PROPERTY_LISTS ${CMAKE_CURRENT_BINARY_DIR})
write_property_lists(${BRISEL_PROPERTY_LISTS})
write_bundle_contents(${CMAKE_CURRENT_BINARY_DIR}/Brisel.contents)
add_subdirectory(${PROJECT_SOURCE_DIR}/helper helper)

if(BRISEL_NIB_SOURCE)
  set(nib ${CMAKE_CURRENT_BINARY_DIR}/MainMenu.nib)
  add_custom_command(OUTPUT ${nib}
    COMMAND ${BRISEL_IBTOOL} --errors --warnings --notices --output-format human-readable-text
            --minimum-deployment-target ${BRISEL_MINIMUM_SYSTEM}
            --compile ${nib} ${BRISEL_NIB_SOURCE}
    DEPENDS ${BRISEL_NIB_SOURCE} VERBATIM)
endif()

set(resources ${nib} ${BRISEL_BUNDLE_FILES} ${BRISEL_BUNDLE_TABLES})
foreach(file IN LISTS resources)
  bundle_folder(folder ${file})
  set_source_files_properties(${file} PROPERTIES MACOSX_PACKAGE_LOCATION ${folder})
endforeach()

file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/entry/macos/*.mm
     ${PROJECT_SOURCE_DIR}/src/entry/macos/*.cpp)
add_executable(Brisel MACOSX_BUNDLE ${sources} ${resources})
set_target_properties(Brisel PROPERTIES
  MACOSX_BUNDLE_INFO_PLIST ${BRISEL_PROPERTY_LISTS}/Brisel.plist)
target_link_libraries(Brisel PRIVATE brisel_core brisel_macos)
foreach(framework AppKit Foundation CoreFoundation DiskArbitration Security ServiceManagement
        UserNotifications)
  target_link_libraries(Brisel PRIVATE "-framework ${framework}")
endforeach()
# Links classes and categories that only the nib refers to, by name.
target_link_options(Brisel PRIVATE -ObjC)

set(application $<TARGET_BUNDLE_DIR:Brisel>)
set(helper ${application}/Contents/${BRISEL_HELPER_FOLDER}/BriselHelper.app)
# The ad-hoc signature is valid on this machine only; scripts/sign-macos makes one for release.
set(comment "Leaving Brisel.app unsigned")
if(BRISEL_CODESIGN)
  set(comment "Signing Brisel.app for this machine")
  set(sign ${BRISEL_CODESIGN} --force --sign - --timestamp=none --options runtime)
  set(seal COMMAND ${sign} ${helper}
           COMMAND ${sign} --entitlements ${BRISEL_ENTITLEMENTS} ${application}
           COMMAND ${BRISEL_CODESIGN} --verify --deep --strict --verbose=2 ${application})
endif()
# Runs again after any change in the bundle.
set(sealed ${CMAKE_CURRENT_BINARY_DIR}/Brisel.sealed)
add_custom_command(OUTPUT ${sealed}
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${helper}
  COMMAND ${CMAKE_COMMAND} -E copy_directory $<TARGET_BUNDLE_DIR:BriselHelper> ${helper}
  COMMAND ${CMAKE_COMMAND} -DBUNDLE=${application}
          -DCONTENTS=${CMAKE_CURRENT_BINARY_DIR}/Brisel.contents
          -P ${CMAKE_CURRENT_SOURCE_DIR}/CheckBundle.cmake
  ${seal}
  COMMAND ${CMAKE_COMMAND} -E touch ${sealed}
  DEPENDS Brisel BriselHelper ${resources} ${BRISEL_ENTITLEMENTS}
          ${BRISEL_PROPERTY_LISTS}/Brisel.plist ${BRISEL_PROPERTY_LISTS}/BriselHelper.plist
          CheckBundle.cmake
  COMMENT ${comment}
  VERBATIM)
add_custom_target(brisel-application ALL DEPENDS ${sealed})

get_filename_component(tree ${CMAKE_RUNTIME_OUTPUT_DIRECTORY} DIRECTORY)
add_custom_target(brisel-disk-image
  COMMAND ${PROJECT_SOURCE_DIR}/scripts/make-disk-image ${application}
          ${tree}/packages/Brisel-${PROJECT_VERSION}.dmg
  DEPENDS ${sealed} VERBATIM)
