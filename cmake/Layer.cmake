# One call per folder: `lexiform_layer(NAME FOLDERS folders USES other layers LINKS libraries)` makes the static
# library `lexiform_NAME` from every source in the folder, and in those of its folders that FOLDERS names, but
# main.cpp, which is a program's. USES is the whole of what the layer may include; tools/check_layers.py holds
# the includes against the same order of levels.

add_library(lexiform_options INTERFACE)
# GCC 12 sees an overlap in every `"text" + std::string` that it inlines (its bug 105329).
target_compile_options(lexiform_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
if(LEXIFORM_WERROR)
  target_compile_options(lexiform_options INTERFACE -Werror)
endif()
if(LEXIFORM_SANITIZE)
  # Instrumented, the standard library's regular expressions look uninitialised to GCC 12 (its bug 105562).
  target_compile_options(lexiform_options INTERFACE
    -fsanitize=${LEXIFORM_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_link_options(lexiform_options INTERFACE -fsanitize=${LEXIFORM_SANITIZE})
endif()
if(LEXIFORM_COVERAGE)
  target_link_options(lexiform_options INTERFACE --coverage)
endif()

# Sets `sources` to the sources in the current folder and in those of its folders that are named. With
# CMAKE_UNITY_BUILD a folder's sources are compiled as one, in a third of the time; a source whose local names
# another one of its folder has too is marked SKIP_UNITY_BUILD_INCLUSION beside the folder's own call.
macro(lexiform_sources)
  set(sources)
  foreach(folder . ${ARGN})
    file(GLOB found CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp)
    list(TRANSFORM found REPLACE "/\\./" "/")
    string(MAKE_C_IDENTIFIER "${folder}" group)
    set_source_files_properties(${found} PROPERTIES UNITY_GROUP "${group}")
    list(APPEND sources ${found})
  endforeach()
endmacro()

# Sources that are compiled alone in every build.
function(lexiform_alone)
  set_source_files_properties(${ARGN} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
endfunction()

function(lexiform_layer name)
  cmake_parse_arguments(LAYER "" "" "FOLDERS;USES;LINKS" ${ARGN})
  lexiform_sources(${LAYER_FOLDERS})
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  list(TRANSFORM LAYER_USES PREPEND lexiform_)
  if(sources)
    add_library(lexiform_${name} STATIC ${sources})
    target_include_directories(lexiform_${name} PUBLIC
      $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/lexiform>)
    target_compile_features(lexiform_${name} PUBLIC cxx_std_20)
    set_target_properties(lexiform_${name} PROPERTIES UNITY_BUILD_MODE GROUP)
    target_link_libraries(lexiform_${name} PUBLIC ${LAYER_USES} ${LAYER_LINKS}
      PRIVATE $<BUILD_INTERFACE:lexiform_options>)
    # Lines are counted where they are reported: in what programs analyse and keep, not in their windows.
    if(LEXIFORM_COVERAGE AND NOT name MATCHES "^(qt_|train|cli)")
      target_compile_options(lexiform_${name} PRIVATE --coverage)
    endif()
  else()
    add_library(lexiform_${name} INTERFACE)
    target_include_directories(lexiform_${name} INTERFACE ${PROJECT_SOURCE_DIR})
    target_link_libraries(lexiform_${name} INTERFACE ${LAYER_USES} ${LAYER_LINKS})
  endif()
endfunction()

# What tests are compiled with besides: the optimiser spends most of a build on their macros.
add_library(lexiform_test_options INTERFACE)
# Compiled as one, a fixture of a local namespace looks to GCC like a header's.
target_compile_options(lexiform_test_options INTERFACE -O0
  $<$<AND:$<BOOL:${CMAKE_UNITY_BUILD}>,$<CXX_COMPILER_ID:GNU>>:-Wno-subobject-linkage>)
target_link_libraries(lexiform_test_options INTERFACE lexiform_options)

# `lexiform_tests(NAME FOLDERS folders USES layers LINKS libraries)` makes one GoogleTest program from a tests
# folder and those of its folders that FOLDERS names.
function(lexiform_tests name)
  cmake_parse_arguments(TESTS "" "" "FOLDERS;USES;LINKS" ${ARGN})
  lexiform_sources(${TESTS_FOLDERS})
  list(TRANSFORM TESTS_USES PREPEND lexiform_)
  add_executable(${name}-tests ${sources})
  set_target_properties(${name}-tests PROPERTIES UNITY_BUILD_MODE GROUP)
  target_link_libraries(${name}-tests PRIVATE ${TESTS_USES} ${TESTS_LINKS}
    lexiform_test_options GTest::gmock GTest::gtest_main)
  target_compile_definitions(${name}-tests PRIVATE
    LEXIFORM_MODELS_DIR="${PROJECT_SOURCE_DIR}/resources/models"
    LEXIFORM_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
  lexiform_test_program(${name})
endfunction()

# One process for all tests of a program: starting one for each takes longer than the tests.
function(lexiform_test_program name)
  add_test(NAME ${name} COMMAND ${name}-tests --gtest_brief=1)
  set_tests_properties(${name} PROPERTIES LABELS unit TIMEOUT 900)
endfunction()
