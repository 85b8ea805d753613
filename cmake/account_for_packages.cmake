# Run by CPack when the archives are made: looks into them for what must not leave the house, and writes SHA256SUMS and a
# bill of materials (SPDX 2.3, from bill_of_materials.json.in) for them.

cmake_minimum_required(VERSION 3.25)

file(READ ${CMAKE_CURRENT_LIST_DIR}/bill_of_materials.json.in templates)
# expand(OBJECT)   sets `object` to an object of the templates, each @variable@ in it replaced
macro(expand kind)
  string(JSON object GET "${templates}" ${kind})
  string(CONFIGURE "${object}" object @ONLY)
endmacro()
# append(ARRAY OBJECT)   adds such an object to one of the bill's arrays
macro(append array kind)
  expand(${kind})
  list(APPEND ${array} "${object}")
endmacro()

# Where this was built, as debug information would name it; a private key. Names of tests and of keys.
string(REGEX REPLACE "([][+.*^$()|?\\])" "\\\\\\1" folder "${CPACK_SOURCE_FOLDER}")
set(secret "${folder}/(build|lib|simulator|status|tool)/|BEGIN [A-Z ]*PRIVATE KEY")
set(secret_file "test|\\.(key|pem)$")

# Each archive and each file in it.
set(number 0)
foreach(archive ${CPACK_PACKAGE_FILES})
  cmake_path(GET archive FILENAME name)
  set(unpacked ${CPACK_TOPLEVEL_DIRECTORY}/unpacked/${name})
  file(ARCHIVE_EXTRACT INPUT ${archive} DESTINATION ${unpacked})
  file(GLOB_RECURSE paths LIST_DIRECTORIES false RELATIVE ${unpacked} ${unpacked}/*)
  # CPack's entries name the account that made them: packed again without.
  file(REMOVE ${archive})
  execute_process(COMMAND ${CMAKE_COMMAND} -E env TZ=UTC zip -q -X ${archive} ${paths}
    WORKING_DIRECTORY ${unpacked} COMMAND_ERROR_IS_FATAL ANY)
  set(sums "")
  foreach(file ${paths})
    file(STRINGS ${unpacked}/${file} secrets LIMIT_COUNT 1 REGEX "${secret}")
    if(secrets OR file MATCHES "${secret_file}")
      message(FATAL_ERROR "${file} in ${name} must not leave this computer: ${secrets}")
    endif()
    math(EXPR number "${number} + 1")
    file(SHA1 ${unpacked}/${file} sha1)
    file(SHA256 ${unpacked}/${file} sha256)
    list(APPEND sums ${sha1})
    append(files file)
    append(relationships contains)
  endforeach()

  list(SORT sums)
  list(JOIN sums "" sums)
  string(SHA1 verification "${sums}")
  file(SHA256 ${archive} sha256)
  string(APPEND sums_file "${sha256}  ${name}\n")
  append(packages archive)
  append(relationships describes)
endforeach()

# What of others is inside our programs: a library of the compiler's or a header, its name and its licence.
foreach(part "libstdc++.a;GCC-runtime;GPL-3.0-or-later WITH GCC-exception-3.1" "libmingwex.a;mingw-w64-runtime;ZPL-2.1"
    "/usr/include/nlohmann/json.hpp;nlohmann-json;MIT" "/usr/include/cxxopts.hpp;cxxopts;MIT")
  list(POP_FRONT part library name licence)
  execute_process(COMMAND ${CPACK_COMPILER} -print-file-name=${library}
    OUTPUT_VARIABLE library OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  file(REAL_PATH ${library} library)
  execute_process(COMMAND dpkg -S ${library} OUTPUT_VARIABLE package COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX REPLACE ":.*" "" package "${package}")
  execute_process(COMMAND dpkg-query -W -f \${Version} ${package} OUTPUT_VARIABLE version COMMAND_ERROR_IS_FATAL ANY)
  append(packages part)
  append(relationships links)
endforeach()

string(TIMESTAMP now "%Y-%m-%dT%H:%M:%SZ" UTC)
string(SHA1 contents "${packages}${files}")
expand(document)
foreach(array packages files relationships)
  list(JOIN ${array} "," items)
  string(JSON object SET "${object}" ${array} "[${items}]")
endforeach()
set(bill sorrel-${CPACK_PACKAGE_VERSION}-win64.spdx.json)
file(WRITE ${CPACK_PACKAGE_DIRECTORY}/${bill} "${object}\n")
file(SHA256 ${CPACK_PACKAGE_DIRECTORY}/${bill} sha256)
file(WRITE ${CPACK_PACKAGE_DIRECTORY}/SHA256SUMS "${sums_file}${sha256}  ${bill}\n")
