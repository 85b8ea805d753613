# Builds for Windows with clang and mingw-w64. In this repository, CMake runs the built programs on Wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER clang-19)
set(CMAKE_CXX_COMPILER clang++-19)
set(CMAKE_C_COMPILER_TARGET x86_64-w64-mingw32)
set(CMAKE_CXX_COMPILER_TARGET x86_64-w64-mingw32)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_AR llvm-ar-19)
set(CMAKE_RANLIB llvm-ranlib-19)

# Defines the include guard of x86intrin.h, so that the compiler skips this header. The header's intrinsics (such as
# AVX) are half of the code that mingw's windows.h includes: with them, compiling and clang-tidy take twice as long. A
# project that uses these intrinsics must include the header that declares them (for AVX, immintrin.h), or remove the
# two definitions below.
set(CMAKE_C_FLAGS_INIT -D__X86INTRIN_H)
set(CMAKE_CXX_FLAGS_INIT -D__X86INTRIN_H)

set(CMAKE_EXE_LINKER_FLAGS_INIT "-fuse-ld=lld-19 -static")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-fuse-ld=lld-19 -static")
set(CMAKE_MODULE_LINKER_FLAGS_INIT "-fuse-ld=lld-19 -static")

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)

# The library's package contains this file, but not scripts/wine.
if(EXISTS ${CMAKE_CURRENT_LIST_DIR}/../scripts/wine)
  set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../scripts/wine;${CMAKE_BINARY_DIR}/wine")
endif()
