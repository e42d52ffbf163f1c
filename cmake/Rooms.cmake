# caravel_room(ROOM SOURCES ... SEES ... USES_OWN ... LINKS ...)
#
# One static library, caravel_<room with "_" for "/">, for the folder ROOM. Its headers are reached as
# "room/Header.h" through a folder of links in the build tree, which only those who link the library
# have on their path: an include of what a room doesn't see does not build.
#
#   SEES      the rooms whose headers this one may include, and pass on
#   USES_OWN  further rooms whose headers for their own use ("room/own/Header.h") this one may include
#   LINKS     libraries that only this room's sources use
#
# Headers in ROOM/own are the room's alone; caravel_<room>_own hands them to whom must look inside.
function(caravel_room room)
    cmake_parse_arguments(ARG "" "" "SOURCES;SEES;USES_OWN;LINKS" ${ARGN})
    string(REPLACE "/" "_" name ${room})
    add_library(caravel_${name} STATIC ${ARG_SOURCES})
    file(GLOB headers CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
    caravel_view(${name} ${room} ${headers})
    target_include_directories(caravel_${name} PUBLIC ${CMAKE_BINARY_DIR}/include/${name})
    target_link_libraries(caravel_${name} PUBLIC Qt6::Core PRIVATE caravel_strict ${ARG_LINKS})

    add_library(caravel_${name}_own INTERFACE)
    file(GLOB own_headers CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/own/*.h)
    caravel_view(${name}_own ${room}/own ${own_headers})
    target_sources(caravel_${name} PRIVATE ${own_headers}) # moc looks beside the sources only
    target_include_directories(caravel_${name}_own INTERFACE ${CMAKE_BINARY_DIR}/include/${name}_own)

    foreach(seen ${ARG_SEES})
        string(REPLACE "/" "_" seen ${seen})
        target_link_libraries(caravel_${name} PUBLIC caravel_${seen})
    endforeach()
    foreach(own ${room} ${ARG_USES_OWN})
        string(REPLACE "/" "_" own ${own})
        target_link_libraries(caravel_${name} PRIVATE caravel_${own}_own)
    endforeach()
endfunction()

# Makes the folder include/<name>/<path> of the build tree anew, with a link to each of the headers.
function(caravel_view name path)
    set(view ${CMAKE_BINARY_DIR}/include/${name})
    file(REMOVE_RECURSE ${view})
    file(MAKE_DIRECTORY ${view}/${path})
    foreach(header ${ARGN})
        get_filename_component(file ${header} NAME)
        file(CREATE_LINK ${header} ${view}/${path}/${file} SYMBOLIC)
    endforeach()
endfunction()
