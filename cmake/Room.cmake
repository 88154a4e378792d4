# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later

# What every target of ours is compiled with.
function(quillane_compile_rules target)
  target_include_directories(${target} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
  target_compile_definitions(${target} PRIVATE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH
    QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400)
  if(QUILLANE_SANITIZE)
    target_compile_options(${target} PUBLIC -fsanitize=address,undefined -fno-omit-frame-pointer
      -fno-sanitize-recover=undefined)
    target_link_options(${target} PUBLIC -fsanitize=address,undefined)
  endif()
  if(QUILLANE_COVERAGE)
    target_compile_options(${target} PUBLIC --coverage)
    target_link_options(${target} PUBLIC --coverage)
  endif()
  if(QUILLANE_FUZZ) # tells the fuzzers which ways an input takes
    target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
  endif()
endfunction()

# A room of the house: one static library, linked only with what its row names.
#   quillane_room(name SOURCES files... LINKS libraries...)
function(quillane_room name)
  cmake_parse_arguments(PARSE_ARGV 1 room "" "" "SOURCES;LINKS")
  add_library(${name} STATIC ${room_SOURCES})
  target_link_libraries(${name} PUBLIC ${room_LINKS})
  quillane_compile_rules(${name})
endfunction()

# The tests of a room: one program under CTest, run without a screen.
#   quillane_test(name SOURCES files... LINKS libraries...)
function(quillane_test name)
  cmake_parse_arguments(PARSE_ARGV 1 room "" "" "SOURCES;LINKS")
  add_executable(${name} ${room_SOURCES})
  target_link_libraries(${name} PRIVATE ${room_LINKS} test_support GTest::gmock GTest::gtest_main)
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  quillane_compile_rules(${name})
  # Texts of tests stand as plain literals; the rules against them are for what ships.
  target_compile_options(${name} PRIVATE -UQT_NO_CAST_FROM_ASCII -UQT_NO_CAST_TO_ASCII)
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()
