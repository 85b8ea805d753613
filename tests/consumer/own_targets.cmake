# Enables tests and adds other targets that a consumer may have: one with a common name, and a program that links the
# whole library. Its link fails if a Windows import library is missing.
enable_testing()
add_custom_target(benchmarks)
add_executable(whole_library main.cpp ${all_headers})
if(MSVC)
  target_link_libraries(whole_library PRIVATE $<LINK_LIBRARY:WHOLE_ARCHIVE,kelvo::kelvo>)
else()
  # lld lacks --push-state, which CMake's WHOLE_ARCHIVE needs.
  target_link_libraries(whole_library PRIVATE -Wl,--whole-archive kelvo::kelvo -Wl,--no-whole-archive)
endif()
