# One library per source folder. A library's headers are reachable only
# through the include folder made for it here, and a target sees only the
# include folders of the libraries it links, so that a header included
# against the direction of the layers is not found and the build fails.
#
#   flowloom_library(NAME
#     HEADERS folder...   folders under src/ whose headers the library offers
#     SOURCES file...     its sources, relative to the calling folder
#     DEPENDS target...   what it stands on (linked PUBLIC)
#     PRIVATE_DEPENDS target...)
function(flowloom_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS;SOURCES;DEPENDS;PRIVATE_DEPENDS")
  add_library(${name} STATIC ${arg_SOURCES})
  set(include_root ${PROJECT_BINARY_DIR}/include/${name})
  file(REMOVE_RECURSE ${include_root})
  foreach(folder IN LISTS arg_HEADERS)
    # Only the folder's own headers: a sub-folder is a library of its own.
    file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${folder}/*.h)
    file(MAKE_DIRECTORY ${include_root}/${folder})
    foreach(header IN LISTS headers)
      get_filename_component(header_name ${header} NAME)
      file(CREATE_LINK ${header} ${include_root}/${folder}/${header_name} SYMBOLIC)
    endforeach()
  endforeach()
  target_include_directories(${name} PUBLIC ${include_root})
  target_link_libraries(${name} PUBLIC ${arg_DEPENDS} PRIVATE ${arg_PRIVATE_DEPENDS})
endfunction()
