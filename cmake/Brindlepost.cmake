# The house's own build words.

add_library(brindlepost_options INTERFACE)
target_compile_options(brindlepost_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # When it optimises, GCC 12 sees overlapping copies inside std::string's operator+ that are not there.
  target_compile_options(brindlepost_options INTERFACE $<$<NOT:$<CONFIG:Debug>>:-Wno-restrict>)
endif()
if(BRINDLEPOST_SANITIZE)
  # A number read from a text may be too large for the integer it is cast to; "undefined" leaves that out.
  target_compile_options(brindlepost_options INTERFACE
    -fsanitize=address,undefined,float-cast-overflow -fno-sanitize-recover=undefined,float-cast-overflow
    -fno-omit-frame-pointer)
  target_link_options(brindlepost_options INTERFACE -fsanitize=address,undefined)
endif()

# brindlepost_library(NAME SOURCES a.cpp b.h ... MAY_INCLUDE base ports ... [ENGINE targets])
# One folder, one static library. Its headers are reached as "folder/Header.h": the library publishes a
# folder of its own that holds nothing but a link to itself, so that only what it links can be included.
function(brindlepost_library name)
  cmake_parse_arguments(ARG "" "FOLDER" "SOURCES;MAY_INCLUDE;ENGINE" ${ARGN})
  if(NOT ARG_FOLDER)
    set(ARG_FOLDER ${name})
  endif()
  set(view "${CMAKE_BINARY_DIR}/include/${name}")
  get_filename_component(parent "${view}/${ARG_FOLDER}" DIRECTORY)
  file(MAKE_DIRECTORY "${parent}")
  if(NOT EXISTS "${view}/${ARG_FOLDER}")
    file(CREATE_LINK "${CMAKE_SOURCE_DIR}/${ARG_FOLDER}" "${view}/${ARG_FOLDER}" SYMBOLIC)
  endif()
  set(compiled ${ARG_SOURCES})
  list(FILTER compiled INCLUDE REGEX "\\.cpp$")
  if(compiled)
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC "${view}")
    target_link_libraries(${name} PUBLIC ${ARG_MAY_INCLUDE} ${ARG_ENGINE} PRIVATE brindlepost_options)
  else()
    add_library(${name} INTERFACE)
    target_include_directories(${name} INTERFACE "${view}")
    target_link_libraries(${name} INTERFACE ${ARG_MAY_INCLUDE})
  endif()
endfunction()

# What every unit of the tests begins with is compiled once: tests/Prelude.h, shared by all test programs. A compiled
# header fits only units with the same options, so they are said here: a failing line wants its number and no more debug
# information than that, and Qt wants position independent code. An engine's own definitions do not matter.
function(brindlepost_prelude)
  add_library(brindlepost_test_options INTERFACE)
  target_compile_options(brindlepost_test_options INTERFACE -fPIC -pthread $<$<CONFIG:Debug>:-g1>)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(brindlepost_test_options INTERFACE -fpch-preprocess)  # for ccache
  endif()
  target_link_libraries(brindlepost_test_options INTERFACE brindlepost_options)
  add_library(test_prelude OBJECT "${CMAKE_SOURCE_DIR}/tests/Prelude.cpp")
  target_link_libraries(test_prelude PRIVATE GTest::gtest brindlepost_test_options)
  target_precompile_headers(test_prelude PRIVATE "${CMAKE_SOURCE_DIR}/tests/Prelude.h")
endfunction()

# brindlepost_test(NAME SOURCES ... LINKS ... LABELS logic controls [TIMEOUT seconds] [RUNNER script] [PREFIX text])
# One test program, run by the script if there is one; every test in it is a test of CTest with the labels, under the
# sanitizers the whole program.
function(brindlepost_test name)
  cmake_parse_arguments(ARG "" "TIMEOUT;RUNNER;PREFIX" "SOURCES;LINKS;LABELS" ${ARGN})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 60)
  endif()
  add_executable(${name} ${ARG_SOURCES})
  if(ARG_RUNNER)
    set_target_properties(${name} PROPERTIES CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_SOURCE_DIR}/${ARG_RUNNER}")
  endif()
  target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}/tests")
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} GTest::gtest GTest::gtest_main brindlepost_test_options)
  target_precompile_headers(${name} REUSE_FROM test_prelude)
  if(BRINDLEPOST_SANITIZE)
    # A sanitized process takes longer to begin than most tests take.
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES LABELS "${ARG_LABELS}" TIMEOUT 600)
    return()
  endif()
  include(GoogleTest)
  gtest_discover_tests(${name}
    DISCOVERY_MODE PRE_TEST
    DISCOVERY_TIMEOUT 60
    TEST_PREFIX "${ARG_PREFIX}"
    PROPERTIES TIMEOUT ${ARG_TIMEOUT})
  # The discovery takes no lists as properties; the labels are put on the tests that it found.
  set(labels "${CMAKE_CURRENT_BINARY_DIR}/${name}_labels.cmake")
  file(WRITE "${labels}" "foreach(test IN LISTS ${name}_TESTS)
  set_tests_properties(\"\${test}\" PROPERTIES LABELS \"${ARG_LABELS}\")
endforeach()
")
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES "${labels}")
endfunction()
