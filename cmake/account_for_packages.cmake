# Run by CPack when the archives are made: looks into them for what must not leave the house, and writes SHA256SUMS and a
# bill of materials (SPDX 2.3) beside them.

cmake_minimum_required(VERSION 3.25)

# An entry's extra field names the account that made it: root, whoever it was.
execute_process(COMMAND perl -0777 -p -i -e [[s/ux\x0b\0\x01\x04.{4}\x04.{4}/ux\x0b\0\x01\x04\0\0\0\0\x04\0\0\0\0/gs]]
  ${CPACK_PACKAGE_FILES} COMMAND_ERROR_IS_FATAL ANY)

# append(list JSON)   @name@ in the object stands for a variable
function(append list object)
  string(CONFIGURE "${object}" configured @ONLY)
  string(APPEND ${list} ",${configured}")
  string(REGEX REPLACE "^," "" ${list} "${${list}}")
  set(${list} "${${list}}" PARENT_SCOPE)
endfunction()

function(relate from relation to)
  append(relationships [[{"spdxElementId": "SPDXRef-@from@", "relationshipType": "@relation@", "relatedSpdxElement": "SPDXRef-@to@"}]])
  set(relationships "${relationships}" PARENT_SCOPE)
endfunction()

# Where this was built, as debug information would name it; a private key. Names of tests and of keys.
string(REGEX REPLACE "([][+.*^$()|?\\])" "\\\\\\1" folder "${CPACK_SOURCE_FOLDER}")
set(secret "${folder}/(build|lib|simulator|status|tool)/|BEGIN [A-Z ]*PRIVATE KEY")
set(secret_file "test|\\.(key|pem)$")

# The owner has not chosen a licence for our own files.
set(own [["licenseConcluded": "NOASSERTION", "copyrightText": "NOASSERTION"]])

# Each archive and each file in it.
set(number 0)
foreach(archive ${CPACK_PACKAGE_FILES})
  cmake_path(GET archive FILENAME name)
  set(unpacked ${CPACK_TOPLEVEL_DIRECTORY}/unpacked/${name})
  file(ARCHIVE_EXTRACT INPUT ${archive} DESTINATION ${unpacked})
  file(GLOB_RECURSE files LIST_DIRECTORIES false RELATIVE ${unpacked} ${unpacked}/*)
  set(sums "")
  foreach(file ${files})
    file(STRINGS ${unpacked}/${file} secrets LIMIT_COUNT 1 REGEX "${secret}")
    if(secrets OR file MATCHES "${secret_file}")
      message(FATAL_ERROR "${file} in ${name} must not leave this computer: ${secrets}")
    endif()
    math(EXPR number "${number} + 1")
    file(SHA1 ${unpacked}/${file} sha1)
    file(SHA256 ${unpacked}/${file} sha256)
    list(APPEND sums ${sha1})
    append(file_list [[{"SPDXID": "SPDXRef-File-@number@", "fileName": "./@file@", @own@, "checksums": [
      {"algorithm": "SHA1", "checksumValue": "@sha1@"}, {"algorithm": "SHA256", "checksumValue": "@sha256@"}]}]])
    relate(${name} CONTAINS File-${number})
  endforeach()

  list(SORT sums)
  list(JOIN sums "" sums)
  string(SHA1 verification "${sums}")
  file(SHA256 ${archive} sha256)
  string(APPEND sums_file "${sha256}  ${name}\n")
  append(packages [[{"SPDXID": "SPDXRef-@name@", "name": "@name@", "versionInfo": "@CPACK_PACKAGE_VERSION@", @own@,
    "downloadLocation": "NOASSERTION", "licenseDeclared": "NOASSERTION", "filesAnalyzed": true,
    "packageVerificationCode": {"packageVerificationCodeValue": "@verification@"},
    "checksums": [{"algorithm": "SHA256", "checksumValue": "@sha256@"}]}]])
  relate(DOCUMENT DESCRIBES ${name})
endforeach()

# What of others is inside our programs: a library of the compiler's or a header, its name and its licence.
foreach(part "libstdc++.a;GCC-runtime;GPL-3.0-or-later WITH GCC-exception-3.1" "libmingwex.a;mingw-w64-runtime;ZPL-2.1"
    "/usr/include/nlohmann/json.hpp;nlohmann-json;MIT" "/usr/include/cxxopts.hpp;cxxopts;MIT")
  list(GET part 0 library)
  list(GET part 1 name)
  list(GET part 2 licence)
  execute_process(COMMAND ${CPACK_COMPILER} -print-file-name=${library}
    OUTPUT_VARIABLE library OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  file(REAL_PATH ${library} library)
  execute_process(COMMAND dpkg -S ${library} OUTPUT_VARIABLE package COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX REPLACE ":.*" "" package "${package}")
  execute_process(COMMAND dpkg-query -W -f \${Version} ${package} OUTPUT_VARIABLE version COMMAND_ERROR_IS_FATAL ANY)
  append(packages [[{"SPDXID": "SPDXRef-@name@", "name": "@name@", "versionInfo": "@version@", "supplier": "Organization: Debian",
    "comment": "From the Debian package @package@. The licence is that of the package's main part.",
    "downloadLocation": "NOASSERTION", "licenseDeclared": "@licence@", "licenseConcluded": "NOASSERTION",
    "copyrightText": "NOASSERTION", "filesAnalyzed": false}]])
  relate(sorrel-${CPACK_PACKAGE_VERSION}-win64.zip STATIC_LINK ${name})
endforeach()

string(TIMESTAMP now "%Y-%m-%dT%H:%M:%SZ" UTC)
string(SHA1 contents "${packages}${file_list}")
set(document [[{"spdxVersion": "SPDX-2.3", "dataLicense": "CC0-1.0", "SPDXID": "SPDXRef-DOCUMENT",
  "name": "sorrel-@CPACK_PACKAGE_VERSION@-win64", "documentNamespace": "urn:sorrel:@CPACK_PACKAGE_VERSION@:@contents@",
  "creationInfo": {"created": "@now@", "creators": ["Tool: scripts/package"]},
  "packages": [@packages@], "files": [@file_list@], "relationships": [@relationships@]}]])
string(CONFIGURE "${document}" document @ONLY)
# Set to what it is, so that the text is checked and laid out.
string(JSON document SET "${document}" spdxVersion "\"SPDX-2.3\"")
set(bill sorrel-${CPACK_PACKAGE_VERSION}-win64.spdx.json)
file(WRITE ${CPACK_PACKAGE_DIRECTORY}/${bill} "${document}\n")
file(SHA256 ${CPACK_PACKAGE_DIRECTORY}/${bill} sha256)
file(WRITE ${CPACK_PACKAGE_DIRECTORY}/SHA256SUMS "${sums_file}${sha256}  ${bill}\n")
