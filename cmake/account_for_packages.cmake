# CPack runs this script after making the archives. The script checks that the archives contain nothing private, and
# repacks them. For the archives, the script also writes SHA256SUMS and a software bill of materials (SPDX 2.3, from
# bill_of_materials.json.in).

cmake_minimum_required(VERSION 3.25)

file(READ ${CMAKE_CURRENT_LIST_DIR}/bill_of_materials.json.in templates)
# expand(KIND)   sets `object` to the template of this kind, with each @variable@ replaced by the variable's value
macro(expand kind)
  string(JSON object GET "${templates}" ${kind})
  string(CONFIGURE "${object}" object @ONLY)
endmacro()
# append(ARRAY KIND)   expands a template and adds the result to an array of the bill of materials
macro(append array kind)
  expand(${kind})
  list(APPEND ${array} "${object}")
endmacro()

# `secret` matches what no packed file may contain: a private key, or the full path of a source file or
# a build output on this machine. Debug information could contain such a path.
# `secret_file` matches the paths of files that must not be packed: keys (*.key, *.pem) and files of the tests.
string(REGEX REPLACE "([][+.*^$()|?\\])" "\\\\\\1" folder "${CPACK_SOURCE_FOLDER}")
set(secret "${folder}/(build|lib|simulator|status|tool)/|BEGIN [A-Z ]*PRIVATE KEY")
set(secret_file "test|\\.(key|pem)$")

# Checks and repacks the files of each archive, and adds the archive and its files to the bill of materials.
set(number 0)
foreach(archive ${CPACK_PACKAGE_FILES})
  cmake_path(GET archive FILENAME name)
  set(unpacked ${CPACK_TOPLEVEL_DIRECTORY}/unpacked/${name})
  file(ARCHIVE_EXTRACT INPUT ${archive} DESTINATION ${unpacked})
  file(GLOB_RECURSE paths LIST_DIRECTORIES false RELATIVE ${unpacked} ${unpacked}/*)
  # Repacks the files, because CPack's archives contain the user id and group id of the account that runs CPack.
  file(REMOVE ${archive})
  execute_process(COMMAND ${CMAKE_COMMAND} -E env TZ=UTC zip -q -X ${archive} ${paths}
    WORKING_DIRECTORY ${unpacked} COMMAND_ERROR_IS_FATAL ANY)
  set(sums "")
  foreach(file ${paths})
    file(STRINGS ${unpacked}/${file} secrets LIMIT_COUNT 1 REGEX "${secret}")
    if(secrets OR file MATCHES "${secret_file}")
      message(FATAL_ERROR "${file} in ${name} must not be published: ${secrets}")
    endif()
    math(EXPR number "${number} + 1")
    file(SHA1 ${unpacked}/${file} sha1)
    file(SHA256 ${unpacked}/${file} sha256)
    list(APPEND sums ${sha1})
    append(files file)
    append(relationships contains)
    if(file MATCHES "/([a-z_]+)\\.(exe|dll|cpl)$")
      set(number_of_${CMAKE_MATCH_1} ${number})
    endif()
  endforeach()

  list(SORT sums)
  list(JOIN sums "" sums)
  string(SHA1 verification "${sums}")
  file(SHA256 ${archive} sha256)
  string(APPEND sums_file "${sha256}  ${name}\n")
  append(packages archive)
  append(relationships describes)
endforeach()

# describe(PACKAGE)   sets `version` and `purl` (package URL) to those of a Debian package
function(describe package)
  execute_process(COMMAND dpkg-query -W -f \${Version} ${package} OUTPUT_VARIABLE version COMMAND_ERROR_IS_FATAL ANY)
  string(REPLACE "+" "%2B" purl "pkg:deb/debian/${package}@${version}")
  string(REPLACE ":" "%3A" purl "${purl}")
  string(REPLACE "pkg%3A" "pkg:" purl "${purl}")
  set(version ${version} PARENT_SCOPE)
  set(purl ${purl} PARENT_SCOPE)
endfunction()

# Adds to the bill of materials the third-party code in our programs and in the simulator's DLLs. Each `part` lists a
# file of the third-party code (a header or a static library), the code's name in the bill of materials, the code's
# licence, and the programs and DLLs that contain the code.
set(all "sorrel;sorrel_status;bthprops;difxapi")
foreach(part "libstdc++.a;GCC-runtime;GPL-3.0-or-later WITH GCC-exception-3.1;${all}"
    "libmingwex.a;mingw-w64-runtime;ZPL-2.1;${all}" "/usr/include/nlohmann/json.hpp;nlohmann-json;MIT;sorrel_status"
    "/usr/include/cxxopts.hpp;cxxopts;MIT;sorrel_status")
  list(POP_FRONT part library name licence)
  execute_process(COMMAND ${CPACK_COMPILER} -print-file-name=${library}
    OUTPUT_VARIABLE library OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  file(REAL_PATH ${library} library)
  execute_process(COMMAND dpkg -S ${library} OUTPUT_VARIABLE package COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX REPLACE ":.*" "" package "${package}")
  describe(${package})
  append(packages part)
  foreach(holder ${part})
    set(holder ${number_of_${holder}})
    append(relationships links)
  endforeach()
endforeach()

# Adds to the bill of materials the tools that made the programs and the archives.
foreach(package clang-19 lld-19 llvm-19 binutils-mingw-w64-x86-64 cmake ninja-build zip)
  describe(${package})
  append(packages tool)
  append(relationships builds)
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
if(DEFINED ENV{SORREL_SUMS_KEY})
  execute_process(COMMAND openssl dgst -sha256 -sign $ENV{SORREL_SUMS_KEY} -out SHA256SUMS.sig SHA256SUMS
    WORKING_DIRECTORY ${CPACK_PACKAGE_DIRECTORY} COMMAND_ERROR_IS_FATAL ANY)
endif()
