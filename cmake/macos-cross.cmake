# Toolchain for Brisel.app on Linux: clang, lld and llvm, with the macOS SDK in BRISEL_MACOS_SDK.
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES BRISEL_MACOS_SDK)

# Debian has one folder for each release of llvm; the newest one with all three wins.
file(GLOB folders /usr/lib/llvm-*/bin)
list(SORT folders COMPARE NATURAL)
foreach(folder IN LISTS folders)
  if(EXISTS ${folder}/clang++ AND EXISTS ${folder}/ld64.lld AND EXISTS ${folder}/llvm-lipo)
    set(llvm ${folder})
  endif()
endforeach()
if(NOT llvm)
  message(FATAL_ERROR "`scripts/install-needs macos-cross` installs clang, lld and llvm.")
endif()

set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_VERSION 20)
set(CMAKE_OSX_SYSROOT ${BRISEL_MACOS_SDK})
set(CMAKE_FIND_ROOT_PATH ${BRISEL_MACOS_SDK})
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_CXX_COMPILER ${llvm}/clang++)
set(CMAKE_CXX_COMPILER_TARGET arm64-apple-darwin20)

# clang and CMake call these programs by Apple's names.
set(tools ${CMAKE_BINARY_DIR}/tools)
file(MAKE_DIRECTORY ${tools})
file(CREATE_LINK ${llvm}/llvm-lipo ${tools}/lipo SYMBOLIC)
file(CREATE_LINK ${llvm}/llvm-libtool-darwin ${tools}/libtool SYMBOLIC)
file(CREATE_LINK ${llvm}/llvm-install-name-tool ${tools}/install_name_tool SYMBOLIC)
file(CREATE_LINK ${llvm}/llvm-otool ${tools}/otool SYMBOLIC)
file(CREATE_LINK ${llvm}/dsymutil ${tools}/dsymutil SYMBOLIC)
set(CMAKE_INSTALL_NAME_TOOL ${tools}/install_name_tool)

set(CMAKE_CXX_FLAGS_INIT "-B${tools} -nostdinc++ -isystem ${BRISEL_MACOS_SDK}/usr/include/c++/v1")
set(CMAKE_EXE_LINKER_FLAGS_INIT "-fuse-ld=lld -stdlib=libc++")
# llvm-ar makes no index of objects for two processors.
set(CMAKE_CXX_CREATE_STATIC_LIBRARY "${tools}/libtool -static -o <TARGET> <OBJECTS>")
