# Which compilers are refused, and what our own targets are compiled with.

include(CheckCSourceCompiles)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)

if(NOT MSVC)
  # __try and __except, which only the C files of lib/platform use.
  set(KELVO_STRUCTURED_EXCEPTIONS_FLAGS -fms-extensions -Wno-language-extension-token)
endif()

list(JOIN KELVO_STRUCTURED_EXCEPTIONS_FLAGS " " CMAKE_REQUIRED_FLAGS)
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

# How every target of this project is compiled: linked privately, so that nothing of it reaches a consumer. Warnings
# become errors in our presets only (CMAKE_COMPILE_WARNING_AS_ERROR).
add_library(kelvo_build_options INTERFACE)
target_compile_definitions(kelvo_build_options INTERFACE UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN)
if(MSVC)
  # C4996: the GetVersionEx family is deprecated but what the library is asked to report.
  target_compile_options(kelvo_build_options INTERFACE /W4 /wd4996 /utf-8 /permissive- $<$<COMPILE_LANGUAGE:CXX>:/EHsc>
    $<$<CONFIG:MinSizeRel>:/Gy> /Z7)
else()
  # No file may say where it was built.
  target_compile_options(kelvo_build_options INTERFACE $<$<COMPILE_LANGUAGE:C,CXX>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>)
  target_compile_options(kelvo_build_options INTERFACE
    "$<$<COMPILE_LANGUAGE:C,CXX>:-Wall;-Wextra;-Wpedantic;-Wconversion;-Wshadow;-ffunction-sections;-fdata-sections>")
endif()
# The sources name functions of Windows 10 and look them up at run time, whatever Windows a consumer's project is for. Options,
# since a definition would not take back the one that the consumer gives.
target_compile_options(kelvo_build_options INTERFACE
  "$<$<COMPILE_LANGUAGE:C,CXX>:-UWINVER;-DWINVER=0x0A00;-U_WIN32_WINNT;-D_WIN32_WINNT=0x0A00>")

# Debug information for the .pdb of a program that is shipped: for it and for the libraries in it.
add_library(kelvo_debug_information INTERFACE)
if(NOT MSVC)
  target_compile_options(kelvo_debug_information INTERFACE
    "$<$<COMPILE_LANGUAGE:C,CXX>:-g;-gcodeview;-gno-codeview-command-line;-ffile-compilation-dir=.;-fdebug-compilation-dir=.>")
endif()

# How our programs are linked besides: hardened, with the checksum in the header (-release), and the same bytes wherever
# they were built. Without control-flow guard: Debian 12's runtime lacks the function that it dispatches calls through.
# kelvo_wide_program is for one that begins with wmain, kelvo_shipped_program for one that is shipped: what a debugger
# needs is in a .pdb with its name.
add_library(kelvo_program INTERFACE)
target_link_libraries(kelvo_program INTERFACE kelvo_build_options)
add_library(kelvo_wide_program INTERFACE)
target_link_libraries(kelvo_wide_program INTERFACE kelvo_program)
add_library(kelvo_shipped_program INTERFACE)
target_link_libraries(kelvo_shipped_program INTERFACE kelvo_wide_program kelvo_debug_information)
# The libraries that it imports come from the system directory alone (LOAD_LIBRARY_SEARCH_SYSTEM32), where Windows obeys that.
if(MSVC)
  target_link_options(kelvo_shipped_program INTERFACE /DEPENDENTLOADFLAG:0x800)
  target_link_options(kelvo_program INTERFACE $<$<CONFIG:MinSizeRel>:/OPT:REF,ICF> /DEBUG /CETCOMPAT /RELEASE /Brepro /PDBALTPATH:%_PDB%)
else()
  target_link_options(kelvo_program INTERFACE -Wl,--gc-sections -Wl,-Xlink=-cetcompat -Wl,-Xlink=-release -Wl,-Xlink=-Brepro)
  target_link_options(kelvo_wide_program INTERFACE -municode)
  target_sources(kelvo_shipped_program INTERFACE ${PROJECT_SOURCE_DIR}/tool/load_configuration.c)
  target_link_options(kelvo_shipped_program INTERFACE -s -Wl,--pdb= -Wl,-Xlink=-pdbaltpath:%_PDB% -Wl,-Xlink=-pdbsourcepath:/sorrel)
endif()
