# lunavox_room(NAME FOLDER sources... [LINKS targets...])
#
# One static library for one room. Other rooms reach its headers as "FOLDER/header.h", and only
# when they link it: each room has an include directory of its own that holds nothing but links to
# the headers in the room's folder, without those in folders below, which are rooms of their own. So
# an include against the direction of the arrows does not compile.
function(lunavox_room name folder)
  cmake_parse_arguments(ROOM "" "" "LINKS" ${ARGN})
  add_library(${name} STATIC ${ROOM_UNPARSED_ARGUMENTS})
  set(view "${CMAKE_BINARY_DIR}/rooms/${name}")
  file(MAKE_DIRECTORY "${view}/${folder}")
  file(
    GLOB headers
    RELATIVE "${CMAKE_SOURCE_DIR}"
    CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/${folder}/*.h")
  foreach(header IN LISTS headers)
    file(CREATE_LINK "${CMAKE_SOURCE_DIR}/${header}" "${view}/${header}" SYMBOLIC)
  endforeach()
  target_include_directories(${name} PUBLIC "${view}")
  target_link_libraries(${name} PUBLIC lunavox_options ${ROOM_LINKS})
endfunction()
