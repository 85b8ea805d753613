# cmake -D source=... -D build=... -D toolchain=... -D compiler=... -D wine=... -P check_consumer.cmake
# Builds and runs the sample project in `source`. If check_installed.cmake has set `prefix`, the sample must use the
# library installed in `prefix`. Otherwise, the sample builds the library from this project's sources.

if(prefix)
  set(library -D CMAKE_REQUIRE_FIND_PACKAGE_kelvo=ON
    -D all_headers=${all_headers})
else()
  # Uses a unity build, as a consumer may do. A normal build would take four times as long.
  set(library -D CMAKE_DISABLE_FIND_PACKAGE_kelvo=ON -D CMAKE_UNITY_BUILD=ON -D CMAKE_UNITY_BUILD_BATCH_SIZE=30)
endif()

# Deletes the cache, so that each run configures from scratch like a new consumer.
file(REMOVE_RECURSE ${build}/CMakeCache.txt ${build}/CMakeFiles)
set(flags "-Wall -Wextra -Wpedantic -Werror -DWINVER=0x0601 -D_WIN32_WINNT=0x0601")
if(toolchain)
  list(APPEND library -D CMAKE_TOOLCHAIN_FILE=${toolchain})
else()
  set(flags "/EHsc /W4 /WX /DWINVER=0x0601 /D_WIN32_WINNT=0x0601")
  list(APPEND library -D CMAKE_C_COMPILER=${compiler} -D CMAKE_CXX_COMPILER=${compiler})
endif()
execute_process(COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET COMMAND ${CMAKE_COMMAND} -G Ninja -S ${source} -B ${build} ${library}
  -D CMAKE_BUILD_TYPE=Release -D CMAKE_C_FLAGS=${flags} -D CMAKE_CXX_FLAGS=${flags}
  -D CMAKE_PROJECT_kelvo_consumer_INCLUDE=${CMAKE_CURRENT_LIST_DIR}/own_targets.cmake)
execute_process(COMMAND_ERROR_IS_FATAL ANY OUTPUT_VARIABLE log COMMAND ${CMAKE_COMMAND} --build ${build})

execute_process(COMMAND_ERROR_IS_FATAL ANY OUTPUT_VARIABLE tests COMMAND ${CMAKE_CTEST_COMMAND} --test-dir ${build} -N)
if(NOT tests MATCHES "Total Tests: 0")
  message(SEND_ERROR "The library adds tests to the consumer's project:\n${tests}")
endif()

foreach(program consumer whole_library)
  execute_process(COMMAND_ERROR_IS_FATAL ANY OUTPUT_VARIABLE output COMMAND ${wine} ${build}/${program}.exe)
  if(NOT output MATCHES "^[^\n]*Windows [^\n]*\r?\none\r?\ntwo\r?\n$")
    message(SEND_ERROR "${program} wrote unexpected output:\n${output}")
  endif()
endforeach()
