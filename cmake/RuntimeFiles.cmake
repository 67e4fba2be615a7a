# The files a program reads from its own folder at run time: the user guide
# (help/) and the message catalogue (messages.xml). They are copied beside the
# executables of the build tree, so that a program started from there finds
# them as it does once installed.
set(runtime_folders ${PROJECT_BINARY_DIR}/src/cli ${PROJECT_BINARY_DIR}/src/designer/window)

file(GLOB_RECURSE runtime_help_files CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/help/*)
# The catalogue may not exist yet; the glob notices when it appears.
file(GLOB runtime_messages CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/data/messages.xml)

set(runtime_commands "")
foreach(folder IN LISTS runtime_folders)
  list(APPEND runtime_commands
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_SOURCE_DIR}/help ${folder}/help)
  if(runtime_messages)
    list(APPEND runtime_commands
      COMMAND ${CMAKE_COMMAND} -E copy_if_different ${runtime_messages} ${folder}/messages.xml)
  endif()
endforeach()

set(runtime_stamp ${PROJECT_BINARY_DIR}/runtime-files.stamp)
add_custom_command(
  OUTPUT ${runtime_stamp}
  ${runtime_commands}
  COMMAND ${CMAKE_COMMAND} -E touch ${runtime_stamp}
  DEPENDS ${runtime_help_files} ${runtime_messages}
  COMMENT "Copying the user guide and the message catalogue beside the programs"
  VERBATIM)
add_custom_target(flowloom_runtime_files ALL DEPENDS ${runtime_stamp})

foreach(program IN ITEMS flowloom flowloom-cli)
  if(TARGET ${program})
    add_dependencies(${program} flowloom_runtime_files)
  endif()
endforeach()
