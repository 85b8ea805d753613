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
set(ENV{SORREL_SUMS_KEY} ${folder}/key.pem)
run(${CMAKE_CPACK_COMMAND} --config ${project}/CPackConfig.cmake -B ${folder}/signed)
# What must end in a failure: a program that is missing, another certificate's key, other roots.
run(${openssl} req -x509 -newkey rsa:2048 -nodes -keyout ${folder}/other_key.pem -out ${folder}/other.pem -subj "/CN=Other")
foreach(fault "" SORREL_SIGN_KEY=${folder}/other_key.pem SORREL_SIGN_ROOTS=${folder}/other.pem)
  file(COPY ${project}/bin/sorrel.exe DESTINATION ${folder}/to_sign/tool)
  if(fault)
    file(COPY ${project}/bin/sorrel_status.exe DESTINATION ${folder}/to_sign/tool)
  endif()
  execute_process(COMMAND ${CMAKE_COMMAND} -E env ${fault} ${CMAKE_COMMAND} -D CPACK_TEMPORARY_DIRECTORY=${folder}/to_sign
    -P ${source_folder}/cmake/sign_programs.cmake RESULT_VARIABLE code OUTPUT_QUIET ERROR_QUIET)
  if(code EQUAL 0)
    message(SEND_ERROR "Signed in spite of ${fault}")
  endif()
endforeach()
unset(ENV{SORREL_SIGN_CERTIFICATE})
unset(ENV{SORREL_SUMS_KEY})
run(${CMAKE_CPACK_COMMAND} --config ${project}/CPackConfig.cmake -B ${folder}/unsigned)

# SHA256SUMS has the sum of each file, and only the signature makes a difference.
set(base sorrel-${version}-win64)
foreach(kind signed unsigned)
  file(GLOB made RELATIVE ${folder}/${kind} ${folder}/${kind}/*.json ${folder}/${kind}/*.zip)
  file(STRINGS ${folder}/${kind}/SHA256SUMS ${kind})
  list(TRANSFORM ${kind} REPLACE ".*  " "" OUTPUT_VARIABLE summed)
  list(SORT summed)
  foreach(files made summed)
    if(NOT ${files} STREQUAL "kelvo-${version}-win64-mingw-sdk.zip;${base}-simulator.zip;${base}-symbols.zip;${base}.spdx.json;${base}.zip")
      message(SEND_ERROR "${kind}, the files ${files} are ${${files}}")
    endif()
  endforeach()
  execute_process(COMMAND sha256sum -c SHA256SUMS WORKING_DIRECTORY ${folder}/${kind}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endforeach()
list(REMOVE_ITEM signed ${unsigned})
list(TRANSFORM signed REPLACE ".*  " "")
list(SORT signed)
if(NOT signed STREQUAL "${base}.spdx.json;${base}.zip")
  message(SEND_ERROR "Packed twice, once signed, these differ: ${signed}")
endif()

# What the bill of materials says of the program is so, and its signature is good.
file(READ ${folder}/signed/${base}.spdx.json bill)
file(ARCHIVE_EXTRACT INPUT ${folder}/signed/${base}.zip DESTINATION ${folder})
file(GLOB_RECURSE libraries ${folder}/${base}/*.dll ${folder}/${base}/*.cpl)
if(libraries)
  message(SEND_ERROR "In the archive that setups ship from: ${libraries}")
endif()
set(program ${folder}/${base}/bin/sorrel.exe)
file(SHA256 ${program} sum)
string(FIND "${bill}" "\"checksumValue\" : \"${sum}\"" place)
if(place LESS 0)
  message(SEND_ERROR "The bill of materials does not list ${program}")
endif()
run(${openssl} x509 -in ${folder}/certificate.pem -pubkey -noout -out ${folder}/public.pem)
run(${openssl} dgst -sha256 -verify ${folder}/public.pem -signature ${folder}/signed/SHA256SUMS.sig
  ${folder}/signed/SHA256SUMS)
run(${osslsigncode} verify -CAfile ${folder}/certificate.pem ${program})
execute_process(COMMAND ${wine} ${program} RESULT_VARIABLE code OUTPUT_VARIABLE output)
if(NOT code EQUAL 2 OR NOT output MATCHES "^invalid arguments")
  message(SEND_ERROR "The signed program ended with ${code} and wrote ${output}")
endif()
