# How a room of src/ becomes a library: all its sources, the rooms of rooms.txt, and the project's compile rules.

add_library(korvet_rules INTERFACE)
target_compile_options(korvet_rules INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Werror
    # The same bytes on every compiler and at every optimisation level: no fused multiply-add, no fast maths.
    -ffp-contract=off -fno-fast-math
    # No name of a folder in what is compiled.
    -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)
target_include_directories(korvet_rules INTERFACE ${PROJECT_SOURCE_DIR}/src)
if(KORVET_SANITIZE)
    target_compile_options(korvet_rules INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(korvet_rules INTERFACE -fsanitize=address,undefined)
endif()

# korvet_rooms(NAME...): a library korvet_NAME for each of these rooms, of the sources below src/NAME without main.cpp,
# linked with the rooms that rooms.txt lets it use.
function(korvet_rooms)
    file(STRINGS ${PROJECT_SOURCE_DIR}/cmake/rooms.txt table REGEX "^[a-z]+:")
    foreach(room IN LISTS ARGN)
        set(row ${table})
        list(FILTER row INCLUDE REGEX "^${room}:")
        if(NOT row MATCHES "^${room}:([a-z ]*)")
            message(FATAL_ERROR "cmake/rooms.txt has no room ${room}")
        endif()
        separate_arguments(used UNIX_COMMAND "${CMAKE_MATCH_1}")
        list(TRANSFORM used PREPEND korvet_)
        file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${room}/*.cpp)
        list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
        add_library(korvet_${room} STATIC ${sources})
        target_link_libraries(korvet_${room} PUBLIC korvet_rules ${used})
        if(NOT room STREQUAL fittings)  # whose windows all have a Build and Pages of their own
            korvet_together(korvet_${room} ${KORVET_ROOMS_TOGETHER})
        endif()
    endforeach()
endfunction()
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/rooms.txt)
