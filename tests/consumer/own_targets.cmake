# A consumer may enable tests and name a target `benchmarks`. The library must then add neither tests nor that target.
# `whole_library` links all object files of the library: this fails if kelvo::kelvo lacks a Windows import library.
enable_testing()
add_custom_target(benchmarks)
add_executable(whole_library main.cpp ${all_headers})
if(MSVC)
  target_link_libraries(whole_library PRIVATE $<LINK_LIBRARY:WHOLE_ARCHIVE,kelvo::kelvo>)
else()
  # lld for MinGW lacks --push-state, which CMake's WHOLE_ARCHIVE needs.
  target_link_libraries(whole_library PRIVATE -Wl,--whole-archive kelvo::kelvo -Wl,--no-whole-archive)
endif()
