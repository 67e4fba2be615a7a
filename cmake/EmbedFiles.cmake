# Compiles the files of a folder into the program, as the resources of a
# Windows executable would be: each sub-folder is a resource type ("FILES",
# "ICON", ...), each file in it a resource named by its file name without
# the extension.
#
#   flowloom_embed_files(<name> <output.cpp> <folder>)
#
# Generates <output.cpp>, which defines flowloom::designer::EmbeddedFiles()
# of "designer/EmbeddedFiles.h", at build time and again whenever a file of
# the folder changes; adding a file re-runs the configuration. <name> is a
# custom target that builds just the generated source.
set(FLOWLOOM_EMBED_SCRIPT ${CMAKE_CURRENT_LIST_DIR}/EmbedFilesScript.cmake)

function(flowloom_embed_files name output folder)
  file(GLOB files CONFIGURE_DEPENDS LIST_DIRECTORIES false ${folder}/*/*)
  add_custom_command(
    OUTPUT ${output}
    COMMAND ${CMAKE_COMMAND} -DFOLDER=${folder} -DOUTPUT=${output} -P ${FLOWLOOM_EMBED_SCRIPT}
    DEPENDS ${files} ${FLOWLOOM_EMBED_SCRIPT}
    COMMENT "Embedding the files of ${folder}"
    VERBATIM)
  add_custom_target(${name} DEPENDS ${output})
endfunction()
