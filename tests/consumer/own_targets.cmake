# Enables tests and adds two targets. `benchmarks` is a common name, which no target of the library may have.
# `whole_library` links every object file of the library: linking fails if kelvo::kelvo lacks an import library.
enable_testing()
add_custom_target(benchmarks)
add_executable(whole_library main.cpp ${all_headers})
if(MSVC)
  target_link_libraries(whole_library PRIVATE $<LINK_LIBRARY:WHOLE_ARCHIVE,kelvo::kelvo>)
else()
  # lld lacks --push-state, which CMake's WHOLE_ARCHIVE needs.
  target_link_libraries(whole_library PRIVATE -Wl,--whole-archive kelvo::kelvo -Wl,--no-whole-archive)
endif()
