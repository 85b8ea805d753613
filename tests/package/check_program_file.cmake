# Checks a program's imports, linker settings, size, checksum and resources, and that it contains no private path:
# cmake -D program=... -D libraries=... -D most_bytes=... -D readobj=... -D osslsigncode=... -D source_folder=... -P check_program_file.cmake

execute_process(COMMAND ${readobj} --coff-imports --file-headers --sections --coff-debug-directory --coff-load-config
  ${program}
  OUTPUT_VARIABLE facts COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "Import {\n  Name: [^\n]+" needed "${facts}")
list(TRANSFORM needed REPLACE "Import {\n  Name: " "")
list(TRANSFORM needed TOLOWER)
list(REMOVE_DUPLICATES needed)
list(SORT needed)
list(JOIN needed "," needed)
if(NOT needed STREQUAL libraries)
  message(SEND_ERROR "${program} must import exactly ${libraries} (more DLLs delay its start), but imports ${needed}")
endif()
if(facts MATCHES "\nDelayImport {")
  message(SEND_ERROR "${program} has a delay-load import. If its DLL or function is missing, a call is fatal")
endif()
if(facts MATCHES "MEM_EXECUTE [^\n]*\n *IMAGE_SCN_MEM_READ [^\n]*\n *IMAGE_SCN_MEM_WRITE")
  message(SEND_ERROR "${program} has a section that can be written and executed")
endif()
# The patterns mean, in order: ASLR, high-entropy ASLR, DEP, the CET shadow stack, a .pdb name without a folder, a hash
# in place of the build time, and a search for imported DLLs only in the system directory (Wine ignores this setting).
foreach(fact "_DYNAMIC_BASE " "_HIGH_ENTROPY_VA " "_NX_COMPAT " "_EX_CET_COMPAT " "PDBFileName: [^/\\\n]+\n" "Type: Repro "
    "DependentLoadFlags: 0x800\n")
  if(NOT facts MATCHES "${fact}")
    message(SEND_ERROR "The file ${program} lacks ${fact}")
  endif()
endforeach()

file(SIZE ${program} size)
if(size GREATER most_bytes)
  message(SEND_ERROR "${program} has ${size} bytes, more than ${most_bytes}")
endif()

# If the header's checksum is wrong, osslsigncode also shows the right one, and `checksums` then has two items.
execute_process(COMMAND ${osslsigncode} verify ${program} OUTPUT_VARIABLE signature ERROR_QUIET)
string(REGEX MATCHALL "PE checksum *: [0-9A-F]+" checksums "${signature}")
list(TRANSFORM checksums REPLACE ".* " "")
list(REMOVE_DUPLICATES checksums)
if(NOT checksums MATCHES "^[0-9A-F]+$" OR checksums STREQUAL "00000000")
  message(SEND_ERROR "The checksum in the header of ${program} is wrong or missing. osslsigncode shows: ${checksums}")
endif()

# The source folder's path is private. If a file contained it, builds of the same sources in two folders would differ.
cmake_path(REPLACE_EXTENSION program LAST_ONLY pdb OUTPUT_VARIABLE pdb)
foreach(file ${program} ${pdb})
  file(STRINGS ${file} found LIMIT_COUNT 1 REGEX "${source_folder}")
  if(found)
    message(SEND_ERROR "${file} contains the path of the source folder: ${found}")
  endif()
endforeach()

# The two GUIDs in the manifest declare support for Windows 7 and for Windows 10.
file(STRINGS ${program} manifest REGEX "asInvoker|{.*}")
file(STRINGS ${program} version ENCODING UTF-16LE REGEX "[Nn]ame|Copyright")
foreach(text "level=\"asInvoker\"" "{35138b9a-5d96-4fbd-8e2d-a2440225f93a}" "{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}"
    CompanyName LegalCopyright ProductName OriginalFilename)
  if(NOT "${manifest}${version}" MATCHES "${text}")
    message(SEND_ERROR "${program} has no ${text} in its manifest or its version resource")
  endif()
endforeach()
