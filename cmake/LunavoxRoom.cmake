# lunavox_room(NAME FOLDER sources... [LINKS targets...])
#
# One static library for one room. Other rooms reach its headers as "FOLDER/header.h", and only
# when they link it: each room has an include directory of its own that holds nothing but a link to
# the room's folder, so an include against the direction of the arrows does not compile.
function(lunavox_room name folder)
  cmake_parse_arguments(ROOM "" "" "LINKS" ${ARGN})
  add_library(${name} STATIC ${ROOM_UNPARSED_ARGUMENTS})
  string(REPLACE "/" "_" view "${folder}")
  set(include_root "${CMAKE_BINARY_DIR}/rooms/${view}")
  get_filename_component(parent "${include_root}/${folder}" DIRECTORY)
  file(MAKE_DIRECTORY "${parent}")
  file(CREATE_LINK "${CMAKE_SOURCE_DIR}/${folder}" "${include_root}/${folder}" SYMBOLIC)
  target_include_directories(${name} PUBLIC "${include_root}")
  target_link_libraries(${name} PUBLIC lunavox_options ${ROOM_LINKS})
endfunction()
