# caravel_folder(NAME SOURCES ... BELOW ... PRIVATE ...)
# One library per folder. BELOW names the folders that it may include; since every folder keeps its
# headers to itself unless it is linked, an include that points upwards does not build.
function(caravel_folder name)
    cmake_parse_arguments(ARG "" "" "SOURCES;BELOW;PRIVATE" ${ARGN})
    add_library(caravel_${name} STATIC ${ARG_SOURCES})
    # Headers are reached as "folder/Header.h" through a folder of links, so that a library sees its
    # own folder and those that it links, and no other.
    set(view ${CMAKE_BINARY_DIR}/include/${name})
    file(MAKE_DIRECTORY ${view})
    file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${view}/${name} SYMBOLIC)
    target_include_directories(caravel_${name} PUBLIC ${view})
    target_link_libraries(caravel_${name} PUBLIC Qt6::Core PRIVATE caravel_strict ${ARG_PRIVATE})
    foreach(below ${ARG_BELOW})
        target_link_libraries(caravel_${name} PUBLIC caravel_${below})
    endforeach()
endfunction()
