# This consumer enables tests, but the library must add none. If the library has a target `benchmarks` too, CMake fails.
# `whole_library` links all object files of the library. If kelvo::kelvo omits an import library, the link step fails.
enable_testing()
add_custom_target(benchmarks)
add_executable(whole_library main.cpp ${all_headers})
if(MSVC)
  target_link_libraries(whole_library PRIVATE $<LINK_LIBRARY:WHOLE_ARCHIVE,kelvo::kelvo>)
else()
  # lld for MinGW lacks --push-state, which CMake's WHOLE_ARCHIVE needs.
  target_link_libraries(whole_library PRIVATE -Wl,--whole-archive kelvo::kelvo -Wl,--no-whole-archive)
endif()
