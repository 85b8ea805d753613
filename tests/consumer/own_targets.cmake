# A consumer may also have tests, a target with a common name, and a program that links the whole library, which shows
# whether an import library of Windows is missing.
enable_testing()
add_custom_target(benchmarks)
add_executable(whole_library main.cpp ${all_headers})
if(MSVC)
  target_link_libraries(whole_library PRIVATE $<LINK_LIBRARY:WHOLE_ARCHIVE,kelvo::kelvo>)
else()
  # lld lacks the --push-state that CMake's own WHOLE_ARCHIVE needs.
  target_link_libraries(whole_library PRIVATE -Wl,--whole-archive kelvo::kelvo -Wl,--no-whole-archive)
endif()
