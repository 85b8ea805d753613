# Run by CPack before it packs: signs the programs when scripts/package asks for it, by these variables.

if(NOT DEFINED ENV{SORREL_SIGN_CERTIFICATE})
  return()
endif()
set(options -h sha256 -n sorrel -certs $ENV{SORREL_SIGN_CERTIFICATE} -key $ENV{SORREL_SIGN_KEY})
if(DEFINED ENV{SORREL_SIGN_TIME_SERVER})
  list(APPEND options -ts $ENV{SORREL_SIGN_TIME_SERVER})
endif()

file(GLOB_RECURSE programs ${CPACK_TEMPORARY_DIRECTORY}/tool/*.exe)
foreach(program ${programs})
  execute_process(COMMAND osslsigncode sign ${options} -in ${program} -out ${program}.signed
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  file(RENAME ${program}.signed ${program})
endforeach()
