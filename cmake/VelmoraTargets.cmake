# What every target of the house shares: warnings, sanitizers, precompiled headers, and one library a folder.

add_library(velmora_options INTERFACE)
target_compile_options(velmora_options INTERFACE
  -Wall -Wextra -Wpedantic -Werror
  # GCC 12 warns falsely about joined strings at -O3 (its bug 105329).
  $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>
  # Formulas are followed operation by operation, so a fused multiply-add would change last digits.
  -ffp-contract=off)
target_include_directories(velmora_options INTERFACE ${CMAKE_SOURCE_DIR})
if(VELMORA_SANITIZE)
  target_compile_options(velmora_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(velmora_options INTERFACE -fsanitize=address,undefined)
endif()

# velmora_precompile(tests TestHeaders.h LINKS GTest::gtest): compiles the headers in that file once, for
# every target that takes them with target_precompile_headers(... REUSE_FROM velmora_tests_headers).
function(velmora_precompile name header)
  cmake_parse_arguments(HEADERS "" "" "LINKS" ${ARGN})
  set(source ${CMAKE_BINARY_DIR}/cmake/velmora_${name}_headers.cpp)
  file(GENERATE OUTPUT ${source} CONTENT "")
  add_library(velmora_${name}_headers OBJECT ${source})
  target_link_libraries(velmora_${name}_headers PRIVATE velmora_options ${HEADERS_LINKS})
  target_precompile_headers(velmora_${name}_headers PRIVATE ${CMAKE_SOURCE_DIR}/cmake/${header})
endfunction()

velmora_precompile(standard StandardHeaders.h)

# velmora_add_layer(engine LINKS velmora_toolkit ...): the library velmora_engine of all sources in
# the folder, linked to the layers below it.
function(velmora_add_layer name)
  cmake_parse_arguments(LAYER "" "" "LINKS;PRIVATE_LINKS" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  add_library(velmora_${name} STATIC ${sources})
  target_precompile_headers(velmora_${name} REUSE_FROM velmora_standard_headers)
  target_link_libraries(velmora_${name}
    PUBLIC velmora_options ${LAYER_LINKS} PRIVATE ${LAYER_PRIVATE_LINKS})
endfunction()

# velmora_add_tests(engine LINKS velmora_engine ...): one test executable a folder.
function(velmora_add_tests name)
  cmake_parse_arguments(TESTS "" "" "LINKS" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  add_executable(${name}_tests ${sources})
  target_precompile_headers(${name}_tests REUSE_FROM velmora_tests_headers)
  target_link_libraries(${name}_tests
    PRIVATE velmora_options ${TESTS_LINKS} GTest::gtest GTest::gmock GTest::gtest_main)
  gtest_discover_tests(${name}_tests TEST_PREFIX "${name}." DISCOVERY_TIMEOUT 60)
endfunction()
