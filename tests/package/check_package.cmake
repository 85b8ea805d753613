# Packs what is built, once signed with a throw-away certificate and once as it is, and looks into the archives:
# cmake -D project=... -D version=... -D folder=... -D osslsigncode=... -D openssl=... -D wine=... -P check_package.cmake

cmake_minimum_required(VERSION 3.25)

function(run)
  execute_process(COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET ERROR_QUIET COMMAND ${ARGN})
endfunction()

file(REMOVE_RECURSE ${folder})
file(MAKE_DIRECTORY ${folder})
run(${openssl} req -x509 -newkey rsa:2048 -nodes -keyout ${folder}/key.pem -out ${folder}/certificate.pem -days 2
  -subj "/CN=Tessalin Test Publisher" -addext extendedKeyUsage=codeSigning)

set(ENV{SOURCE_DATE_EPOCH} 1700000000)
set(ENV{SORREL_SIGN_CERTIFICATE} ${folder}/certificate.pem)
set(ENV{SORREL_SIGN_KEY} ${folder}/key.pem)
run(${CMAKE_CPACK_COMMAND} --config ${project}/CPackConfig.cmake -B ${folder}/signed)
unset(ENV{SORREL_SIGN_CERTIFICATE})
run(${CMAKE_CPACK_COMMAND} --config ${project}/CPackConfig.cmake -B ${folder}/unsigned)

# Each archive is told with its sum, and only the signature makes a difference.
foreach(kind signed unsigned)
  file(GLOB made RELATIVE ${folder}/${kind} ${folder}/${kind}/*.*)
  if(NOT made STREQUAL "kelvo-${version}-win64-mingw-sdk.zip;sorrel-${version}-win64-symbols.zip;sorrel-${version}-win64.spdx.json;sorrel-${version}-win64.zip")
    message(SEND_ERROR "Packed were ${made}")
  endif()
  foreach(file ${made})
    file(SHA256 ${folder}/${kind}/${file} sum)
    list(APPEND ${kind}_sums ${sum})
    file(STRINGS ${folder}/${kind}/SHA256SUMS line REGEX "^${sum}  ${file}$")
    if(NOT line)
      message(SEND_ERROR "SHA256SUMS does not tell the sum of ${file}")
    endif()
  endforeach()
endforeach()
foreach(archive same same other other)
  list(POP_FRONT signed_sums first)
  list(POP_FRONT unsigned_sums second)
  if(archive STREQUAL "same" AND NOT first STREQUAL second OR archive STREQUAL "other" AND first STREQUAL second)
    message(SEND_ERROR "Packed twice, an archive is not the ${archive}: ${first} ${second}")
  endif()
endforeach()

# What the bill of materials says of the program is so, and its signature is good.
file(READ ${folder}/signed/sorrel-${version}-win64.spdx.json bill)
file(ARCHIVE_EXTRACT INPUT ${folder}/signed/sorrel-${version}-win64.zip DESTINATION ${folder})
set(program ${folder}/sorrel-${version}-win64/bin/sorrel.exe)
file(SHA256 ${program} sum)
string(FIND "${bill}" "\"checksumValue\" : \"${sum}\"" place)
if(place LESS 0)
  message(SEND_ERROR "The bill of materials does not list ${program}")
endif()
run(${osslsigncode} verify -CAfile ${folder}/certificate.pem ${program})
execute_process(COMMAND ${wine} ${program} RESULT_VARIABLE code OUTPUT_VARIABLE output)
if(NOT code EQUAL 2 OR NOT output MATCHES "^invalid arguments")
  message(SEND_ERROR "The signed program ended with ${code} and wrote ${output}")
endif()
