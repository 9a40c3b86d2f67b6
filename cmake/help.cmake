# The help file: the pages of resources/help in one compressed file beside the programs. The generator belongs
# to Qt and lies in its folders, not always on the path; one of an older Qt on the path must not be taken.
find_program(KORVET_HELP_GENERATOR NAMES qhelpgenerator qhelpgenerator-qt6 qhelpgenerator6
    HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_LIBEXECS} ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS}
          /usr/lib/qt6/libexec /usr/lib/qt6/bin
    DOC "Qt's compiler of help files" REQUIRED)

file(GLOB KORVET_HELP_PAGES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/help/*)
set(KORVET_HELP_PROJECT ${CMAKE_BINARY_DIR}/help)
set(KORVET_HELP_FILE ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/korvet.qch)
add_custom_command(OUTPUT ${KORVET_HELP_FILE}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}
    COMMAND ${CMAKE_COMMAND} -DPAGES=${PROJECT_SOURCE_DIR}/resources/help -DOUTPUT=${KORVET_HELP_PROJECT}
            -P ${PROJECT_SOURCE_DIR}/cmake/help_project.cmake
    COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen
            ${KORVET_HELP_GENERATOR} ${KORVET_HELP_PROJECT}/korvet.qhp -o ${KORVET_HELP_FILE}
    DEPENDS ${KORVET_HELP_PAGES} ${PROJECT_SOURCE_DIR}/cmake/help_project.cmake
    COMMENT "Building the help file"
    VERBATIM)
add_custom_target(korvet_help DEPENDS ${KORVET_HELP_FILE})
