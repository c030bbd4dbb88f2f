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
  target_compile_options(lexiform_options INTERFACE
    -fsanitize=${LEXIFORM_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(lexiform_options INTERFACE -fsanitize=${LEXIFORM_SANITIZE})
endif()
if(LEXIFORM_COVERAGE)
  target_compile_options(lexiform_options INTERFACE --coverage)
  target_link_options(lexiform_options INTERFACE --coverage)
endif()

# Sets `sources` to the sources in the current folder and in those of its folders that are named.
macro(lexiform_sources)
  set(patterns ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  foreach(folder ${ARGN})
    list(APPEND patterns ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp)
  endforeach()
  file(GLOB sources CONFIGURE_DEPENDS ${patterns})
endmacro()

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
    target_link_libraries(lexiform_${name} PUBLIC ${LAYER_USES} ${LAYER_LINKS}
      PRIVATE $<BUILD_INTERFACE:lexiform_options>)
  else()
    add_library(lexiform_${name} INTERFACE)
    target_include_directories(lexiform_${name} INTERFACE ${PROJECT_SOURCE_DIR})
    target_link_libraries(lexiform_${name} INTERFACE ${LAYER_USES} ${LAYER_LINKS})
  endif()
endfunction()

# What tests are compiled with besides: the optimiser spends most of a build on their macros.
add_library(lexiform_test_options INTERFACE)
target_compile_options(lexiform_test_options INTERFACE -O0)
target_link_libraries(lexiform_test_options INTERFACE lexiform_options)

# `lexiform_tests(NAME FOLDERS folders USES layers LINKS libraries)` makes one GoogleTest program from a tests
# folder and those of its folders that FOLDERS names.
function(lexiform_tests name)
  cmake_parse_arguments(TESTS "" "" "FOLDERS;USES;LINKS" ${ARGN})
  lexiform_sources(${TESTS_FOLDERS})
  list(TRANSFORM TESTS_USES PREPEND lexiform_)
  add_executable(${name}-tests ${sources})
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
