# Installs the project into empty folders and checks the files. Usage:
# cmake -D build_folder=... -D source_folder=... -D folder=... -D wine=... -P check_installed.cmake

cmake_minimum_required(VERSION 3.25)

# Runs cmake --install with `prefix` and any further arguments. Sets `files` to the list of installed files.
function(install_into prefix)
  file(REMOVE_RECURSE ${prefix})
  execute_process(COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET
    COMMAND ${CMAKE_COMMAND} --install ${build_folder} --prefix ${prefix} ${ARGN})
  file(GLOB_RECURSE found LIST_DIRECTORIES false RELATIVE ${prefix} ${prefix}/*)
  set(files ${found} PARENT_SCOPE)
endfunction()

# Each list has a component's name and then exactly the files that the component installs.
foreach(component "tool;bin/sorrel.exe;bin/sorrel_status.exe" "symbols;bin/sorrel.pdb;bin/sorrel_status.pdb"
    "simulator;lib/sorrel/simulator/Tessalin.inf;lib/sorrel/simulator/bthprops.cpl;lib/sorrel/simulator/difxapi.dll")
  list(POP_FRONT component name)
  install_into(${folder}/${name} --component ${name})
  if(NOT files STREQUAL component)
    message(SEND_ERROR "The component ${name} installs ${files}, not ${component}")
  endif()
endforeach()

install_into(${folder}/all)
foreach(expected bin/sorrel.exe lib/libkelvo.a lib/cmake/kelvo/kelvo-config.cmake include/kelvo/lib/string/wstring.h
    share/doc/sorrel/README.md share/doc/sorrel/docs/simulator.md share/doc/sorrel/installers/cmd/run_sorrel.cmd
    share/doc/kelvo/library.md)
  if(NOT expected IN_LIST files)
    message(SEND_ERROR "${expected} is not installed")
  endif()
endforeach()
foreach(file ${files})
  file(STRINGS ${folder}/all/${file} found LIMIT_COUNT 1 REGEX "${source_folder}")
  if(file MATCHES "internal|_test|\\.pdb$" OR found)
    message(SEND_ERROR "The installed ${file} is an internal, test or .pdb file, or contains the source folder's path: ${found}")
  endif()
endforeach()

# kelvo-config.cmake must accept only mingw. This script has no compiler, so kelvo_FOUND must be false.
include(${folder}/all/lib/cmake/kelvo/kelvo-config.cmake)
if(kelvo_FOUND OR NOT kelvo_NOT_FOUND_MESSAGE MATCHES "built for MINGW")
  message(SEND_ERROR "The package must accept only a mingw compiler: ${kelvo_NOT_FOUND_MESSAGE}")
endif()

# Uses the installed library to build the installed sample and whole_library, a program that includes all headers.
list(FILTER files INCLUDE REGEX "\\.h$")
list(TRANSFORM files REPLACE "include/kelvo/(.*)" "#include \"\\1\"\n")
string(JOIN "" includes ${files})
set(prefix ${folder}/all)
set(toolchain ${prefix}/lib/cmake/kelvo/toolchain_mingw.cmake)
set(all_headers ${folder}/all_headers.cpp)
file(WRITE ${all_headers} "${includes}")
set(source ${prefix}/share/doc/kelvo/examples/consumer)
set(build ${folder}/consumer)
include(${CMAKE_CURRENT_LIST_DIR}/../consumer/check_consumer.cmake)
