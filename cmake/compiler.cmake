# Rejects unsuitable compilers, and sets the compiler and linker options of our own targets.

include(CheckCSourceCompiles)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)

if(NOT MSVC)
  # Enables __try and __except, which only lib/platform/internal/structured_guard.c uses.
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

# The compiler options of all targets of this project. The targets link kelvo_build_options privately, so that a
# consumer's targets do not get the options. Warnings become errors only in our presets
# (CMAKE_COMPILE_WARNING_AS_ERROR).
add_library(kelvo_build_options INTERFACE)
target_compile_definitions(kelvo_build_options INTERFACE UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN)
if(MSVC)
  # Disables warning C4996 (call of a deprecated function): the library calls GetVersionEx and related functions on
  # purpose.
  target_compile_options(kelvo_build_options INTERFACE /W4 /wd4996 /utf-8 /permissive- $<$<COMPILE_LANGUAGE:CXX>:/EHsc>
    $<$<CONFIG:MinSizeRel>:/Gy> /Z7)
else()
  # Keeps the path of the source folder out of the built files.
  target_compile_options(kelvo_build_options INTERFACE $<$<COMPILE_LANGUAGE:C,CXX>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>)
  target_compile_options(kelvo_build_options INTERFACE
    "$<$<COMPILE_LANGUAGE:C,CXX>:-Wall;-Wextra;-Wpedantic;-Wconversion;-Wshadow;-ffunction-sections;-fdata-sections>")
endif()
# Makes Windows' headers declare the functions of Windows 10, even if a consumer's project targets an older Windows.
# This is safe, since functions that an older Windows lacks are looked up at run time. WINVER and _WIN32_WINNT are set
# with compiler options, because target_compile_definitions cannot first undefine the values of the consumer's project.
target_compile_options(kelvo_build_options INTERFACE
  "$<$<COMPILE_LANGUAGE:C,CXX>:-UWINVER;-DWINVER=0x0A00;-U_WIN32_WINNT;-D_WIN32_WINNT=0x0A00>")

# Adds debug information to a shipped program and to its static libraries, so that the linker can write a .pdb file.
add_library(kelvo_debug_information INTERFACE)
if(NOT MSVC)
  target_compile_options(kelvo_debug_information INTERFACE
    "$<$<COMPILE_LANGUAGE:C,CXX>:-g;-gcodeview;-gno-codeview-command-line;-ffile-compilation-dir=.;-fdebug-compilation-dir=.>")
endif()

# The linker options of our programs:
#   kelvo_program          hardening, a checksum in the header (-release), and reproducible output: the same bytes in
#                          every build folder. Control Flow Guard is off: Debian 12's mingw runtime lacks the guard's
#                          dispatch function
#   kelvo_wide_program     as kelvo_program, with wmain instead of main
#   kelvo_shipped_program  as kelvo_wide_program, with a .pdb file for debuggers
add_library(kelvo_program INTERFACE)
target_link_libraries(kelvo_program INTERFACE kelvo_build_options)
add_library(kelvo_wide_program INTERFACE)
target_link_libraries(kelvo_wide_program INTERFACE kelvo_program)
add_library(kelvo_shipped_program INTERFACE)
target_link_libraries(kelvo_shipped_program INTERFACE kelvo_wide_program kelvo_debug_information)
# Makes Windows 10 1607 and later search only the system directory for the DLLs in a shipped program's import table.
# With MSVC, the linker option /DEPENDENTLOADFLAG does this (0x800 is LOAD_LIBRARY_SEARCH_SYSTEM32). In other builds,
# tool/load_configuration.c does it.
if(MSVC)
  target_link_options(kelvo_shipped_program INTERFACE /DEPENDENTLOADFLAG:0x800)
  target_link_options(kelvo_program INTERFACE $<$<CONFIG:MinSizeRel>:/OPT:REF,ICF> /DEBUG /CETCOMPAT /RELEASE /Brepro /PDBALTPATH:%_PDB%)
else()
  target_link_options(kelvo_program INTERFACE -Wl,--gc-sections -Wl,-Xlink=-cetcompat -Wl,-Xlink=-release -Wl,-Xlink=-Brepro)
  target_link_options(kelvo_wide_program INTERFACE -municode)
  target_sources(kelvo_shipped_program INTERFACE ${PROJECT_SOURCE_DIR}/tool/load_configuration.c)
  target_link_options(kelvo_shipped_program INTERFACE -s -Wl,--pdb= -Wl,-Xlink=-pdbaltpath:%_PDB% -Wl,-Xlink=-pdbsourcepath:/sorrel)
endif()
