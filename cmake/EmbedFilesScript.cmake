# Run by flowloom_embed_files with -DFOLDER=<folder> -DOUTPUT=<file.cpp>:
# writes every file of the folder's sub-folders as a byte array and a table
# of {type, name, bytes}.
file(GLOB types LIST_DIRECTORIES true RELATIVE ${FOLDER} ${FOLDER}/*)
list(SORT types)

set(arrays "")
set(entries "")
set(index 0)
foreach(type IN LISTS types)
  if(NOT IS_DIRECTORY ${FOLDER}/${type})
    continue()
  endif()
  file(GLOB files LIST_DIRECTORIES false RELATIVE ${FOLDER}/${type} ${FOLDER}/${type}/*)
  list(SORT files)
  foreach(file_name IN LISTS files)
    get_filename_component(resource ${file_name} NAME_WLE)
    file(READ ${FOLDER}/${type}/${file_name} hex HEX)
    string(LENGTH "${hex}" hex_length)
    if(hex_length EQUAL 0)
      set(bytes "0")
      set(size 0)
    else()
      math(EXPR size "${hex_length} / 2")
      # Twenty bytes a line, then each pair of digits as one byte.
      string(REGEX REPLACE "(........................................)" "\\1\n    " hex "${hex}")
      string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${hex}")
    endif()
    string(APPEND arrays "// ${type}/${file_name}\nconstexpr unsigned char kFile${index}[] = {\n    ${bytes}\n};\n\n")
    string(APPEND entries "    {\"${type}\", \"${resource}\", kFile${index}, ${size}},\n")
    math(EXPR index "${index} + 1")
  endforeach()
endforeach()

if(index EQUAL 0)
  set(table "std::span<const EmbeddedFile> EmbeddedFiles() { return {}; }\n")
else()
  set(table "constexpr EmbeddedFile kFiles[] = {\n${entries}};\n\n}  // namespace\n\nstd::span<const EmbeddedFile> EmbeddedFiles() { return kFiles; }\n")
  set(arrays "namespace {\n\n${arrays}")
endif()

file(WRITE ${OUTPUT}
  "// Generated from ${FOLDER} by cmake/EmbedFilesScript.cmake. Do not edit.\n"
  "#include \"designer/EmbeddedFiles.h\"\n\n"
  "namespace flowloom::designer {\n\n"
  "${arrays}${table}\n"
  "}  // namespace flowloom::designer\n")
