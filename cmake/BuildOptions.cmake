# Compile options of all targets, as one interface target.
add_library(brisel_options INTERFACE)
target_include_directories(brisel_options INTERFACE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR})

target_compile_options(brisel_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
  -Wold-style-cast -Woverloaded-virtual -Wnull-dereference)

if(BRISEL_SANITIZERS)
  target_compile_options(brisel_options INTERFACE
    -fsanitize=${BRISEL_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(brisel_options INTERFACE -fsanitize=${BRISEL_SANITIZERS})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # gcc reports null dereferences on branches that the sanitizers add.
    target_compile_options(brisel_options INTERFACE -Wno-null-dereference)
  endif()
endif()

# Coverage feedback for the fuzz targets; only they link libFuzzer.
if(BRISEL_FUZZERS AND CMAKE_CXX_COMPILER_ID MATCHES "Clang")
  target_compile_options(brisel_options INTERFACE -fsanitize=fuzzer-no-link)
  target_link_options(brisel_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

if(BRISEL_COVERAGE)
  target_compile_options(brisel_options INTERFACE --coverage -fprofile-update=atomic)
  target_link_options(brisel_options INTERFACE --coverage)
endif()

# Hardening, in every build type that is optimised.
set(optimised $<NOT:$<CONFIG:Debug>>)
if(NOT APPLE)
  target_link_options(brisel_options INTERFACE $<${optimised}:-Wl,-z,relro,-z,now>)
endif()
target_compile_options(brisel_options INTERFACE
  $<${optimised}:-fstack-protector-strong> $<${optimised}:-U_FORTIFY_SOURCE>
  $<${optimised}:-D_FORTIFY_SOURCE=2>)
