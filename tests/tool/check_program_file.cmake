# What the program's file needs and says:
# cmake -D program=... -D libraries=... -D most_bytes=... -D readobj=... -D osslsigncode=... -D source_folder=... -P check_program_file.cmake

execute_process(COMMAND ${readobj} --coff-imports ${program} OUTPUT_VARIABLE imports
  COMMAND_ERROR_IS_FATAL ANY)
string(TOLOWER "${imports}" imports)
string(REGEX MATCHALL "import {\n  name: [^\n]+" needed "${imports}")
list(TRANSFORM needed REPLACE "import {\n  name: " "")
list(REMOVE_DUPLICATES needed)
list(SORT needed)
list(JOIN needed "," needed)
if(NOT needed STREQUAL libraries)
  message(SEND_ERROR "${program} needs other libraries than these, each of which makes every start slower: ${needed}")
endif()
if(imports MATCHES "delayimport")
  message(SEND_ERROR "${program} has a delayed import, which ends the process where it cannot be resolved")
endif()

file(SIZE ${program} size)
if(size GREATER most_bytes)
  message(SEND_ERROR "${program} has grown to ${size} bytes")
endif()

# ASLR over the whole address space, no execution of data, control-flow enforcement's shadow stack.
execute_process(COMMAND ${readobj} --file-headers --sections --coff-debug-directory ${program} OUTPUT_VARIABLE headers
  COMMAND_ERROR_IS_FATAL ANY)
foreach(mark DYNAMIC_BASE HIGH_ENTROPY_VA NX_COMPAT EX_CET_COMPAT)
  if(NOT headers MATCHES "DLL_CHARACTERISTICS_${mark} ")
    message(SEND_ERROR "${program} is not marked ${mark}")
  endif()
endforeach()
if(headers MATCHES "MEM_EXECUTE [^\n]*\n *IMAGE_SCN_MEM_READ [^\n]*\n *IMAGE_SCN_MEM_WRITE")
  message(SEND_ERROR "${program} has a section that can be written and executed")
endif()

# A checksum that does not fit is shown beside the right one.
execute_process(COMMAND ${osslsigncode} verify ${program} OUTPUT_VARIABLE signature ERROR_QUIET)
string(REGEX MATCHALL "PE checksum *: [0-9A-F]+" checksums "${signature}")
list(TRANSFORM checksums REPLACE ".* " "")
list(REMOVE_DUPLICATES checksums)
if(NOT checksums MATCHES "^[0-9A-F]+$" OR checksums STREQUAL "00000000")
  message(SEND_ERROR "${program} has not its checksum in the header: ${checksums}")
endif()

# Where it was built is nobody's business, and would make it another program elsewhere.
cmake_path(REPLACE_EXTENSION program LAST_ONLY pdb OUTPUT_VARIABLE pdb)
foreach(file ${program} ${pdb})
  file(STRINGS ${file} found LIMIT_COUNT 1 REGEX "${source_folder}")
  if(found)
    message(SEND_ERROR "${file} names the folder where it was built: ${found}")
  endif()
endforeach()
if(NOT headers MATCHES "PDBFileName: [^/\\\n]+\n" OR NOT headers MATCHES "Type: Repro ")
  message(SEND_ERROR "${program} does not name its .pdb without a folder, or carries the time of its build")
endif()

foreach(text "level=\"asInvoker\"" "{35138b9a-5d96-4fbd-8e2d-a2440225f93a}"
    "{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}")
  file(STRINGS ${program} found REGEX "${text}")
  if(NOT found)
    message(SEND_ERROR "${program} has no ${text} in its manifest")
  endif()
endforeach()
foreach(name CompanyName LegalCopyright ProductName OriginalFilename)
  file(STRINGS ${program} found ENCODING UTF-16LE REGEX "${name}")
  if(NOT found)
    message(SEND_ERROR "${program} has no ${name} in its version resource")
  endif()
endforeach()
