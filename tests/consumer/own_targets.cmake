# Enables tests and adds two targets, as a consumer may. `benchmarks` is a common name: the library must not use it.
# `whole_library` links all object files of the library, which fails if kelvo::kelvo omits a Windows import library.
enable_testing()
add_custom_target(benchmarks)
add_executable(whole_library main.cpp ${all_headers})
if(MSVC)
  target_link_libraries(whole_library PRIVATE $<LINK_LIBRARY:WHOLE_ARCHIVE,kelvo::kelvo>)
else()
  # lld lacks --push-state, which CMake's WHOLE_ARCHIVE needs.
  target_link_libraries(whole_library PRIVATE -Wl,--whole-archive kelvo::kelvo -Wl,--no-whole-archive)
endif()
