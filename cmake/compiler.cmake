# What every target is compiled with, and which compilers are refused.

include(CheckCSourceCompiles)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)

if(NOT MSVC)
  # __try and __except, which only the C files of lib/platform use.
  set(KELVO_STRUCTURED_EXCEPTIONS_FLAG -fms-extensions)
endif()

set(CMAKE_REQUIRED_FLAGS ${KELVO_STRUCTURED_EXCEPTIONS_FLAG})
check_c_source_compiles("
  int main(void) { __try { return 0; } __except (1) { return 1; } }"
  KELVO_HAS_STRUCTURED_EXCEPTIONS)
unset(CMAKE_REQUIRED_FLAGS)
if(NOT KELVO_HAS_STRUCTURED_EXCEPTIONS)
  message(FATAL_ERROR "${CMAKE_C_COMPILER} has no structured exception handling (__try, __except): build with clang or MSVC.")
endif()

if(NOT CMAKE_SIZEOF_VOID_P EQUAL 8)
  message(FATAL_ERROR "Only 64-bit Windows is supported.")
endif()

add_compile_definitions(UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN
  WINVER=0x0A00 _WIN32_WINNT=0x0A00)
include_directories(${PROJECT_SOURCE_DIR})

if(MSVC)
  add_compile_options(/W4 /WX /utf-8 /permissive- $<$<COMPILE_LANGUAGE:CXX>:/EHsc>
    $<$<CONFIG:MinSizeRel>:/Gy> /Zi)
  # The GetVersionEx family is deprecated but what the library is asked to report.
  add_compile_options(/wd4996)
  add_link_options($<$<CONFIG:MinSizeRel>:/OPT:REF,ICF> /DEBUG)
else()
  add_compile_options($<$<COMPILE_LANGUAGE:C,CXX>:-Wall>
    $<$<COMPILE_LANGUAGE:C,CXX>:-Wextra> $<$<COMPILE_LANGUAGE:C,CXX>:-Wconversion>
    $<$<COMPILE_LANGUAGE:C,CXX>:-Wshadow> $<$<COMPILE_LANGUAGE:C,CXX>:-Werror>
    $<$<COMPILE_LANGUAGE:C,CXX>:-ffunction-sections>
    $<$<COMPILE_LANGUAGE:C,CXX>:-fdata-sections>)
  add_link_options(-municode -Wl,--gc-sections)
endif()
