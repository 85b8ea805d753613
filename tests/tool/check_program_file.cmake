# What the program's file needs and says: cmake -D program=... -D readobj=... -P check_program_file.cmake

execute_process(COMMAND ${readobj} --coff-imports ${program} OUTPUT_VARIABLE imports
  COMMAND_ERROR_IS_FATAL ANY)
string(TOLOWER "${imports}" imports)
string(REGEX MATCHALL "import {\n  name: [^\n]+" needed "${imports}")
list(TRANSFORM needed REPLACE "import {\n  name: " "")
list(REMOVE_DUPLICATES needed)
list(SORT needed)
if(NOT needed STREQUAL "advapi32.dll;crypt32.dll;kernel32.dll;msvcrt.dll")
  message(SEND_ERROR "${program} needs other libraries than every Windows has: ${needed}")
endif()
if(NOT imports MATCHES "delayimport {\n  name: crypt32.dll")
  message(SEND_ERROR "${program} does not load crypt32.dll late")
endif()

file(SIZE ${program} size)
if(size GREATER 102400)
  message(SEND_ERROR "${program} has grown to ${size} bytes")
endif()

foreach(text "level=\"asInvoker\"" "{35138b9a-5d96-4fbd-8e2d-a2440225f93a}"
    "{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}")
  file(STRINGS ${program} found REGEX "${text}")
  if(NOT found)
    message(SEND_ERROR "${program} has no ${text} in its manifest")
  endif()
endforeach()
file(STRINGS ${program} found ENCODING UTF-16LE REGEX "OriginalFilename")
if(NOT found)
  message(SEND_ERROR "${program} has no version resource")
endif()
