# How a room of src/ becomes a library: all its sources, the rooms it may use, and the project's compile rules.

add_library(korvet_rules INTERFACE)
target_compile_options(korvet_rules INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Werror
    # The same bytes on every compiler and at every optimisation level: no fused multiply-add, no fast maths.
    -ffp-contract=off -fno-fast-math)
target_include_directories(korvet_rules INTERFACE ${PROJECT_SOURCE_DIR}/src)
if(KORVET_SANITIZE)
    target_compile_options(korvet_rules INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(korvet_rules INTERFACE -fsanitize=address,undefined)
endif()
if(KORVET_FUZZ)
    target_compile_options(korvet_rules INTERFACE -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all)
    target_link_options(korvet_rules INTERFACE -fsanitize=address,undefined)
endif()

# korvet_room(NAME FOLDER [ROOM...]): library korvet_NAME of the sources below FOLDER; main.cpp is left out.
function(korvet_room name folder)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${folder}/*.cpp)
    list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
    add_library(korvet_${name} STATIC ${sources})
    target_link_libraries(korvet_${name} PUBLIC korvet_rules)
    foreach(room IN LISTS ARGN)
        target_link_libraries(korvet_${name} PUBLIC korvet_${room})
    endforeach()
endfunction()
