# What cmake --install brings to a machine, and the Debian package of it. Texts and drawings stand in packaging/.
include(GNUInstallDirs)
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)  # what has been built is installed, and nothing built for it

# Of the version in src/core/constants.h, the same day twice.
set(KORVET_RELEASE_DATE "2026-11-22")
set(KORVET_PACKAGE_DATE "Sun, 22 Nov 2026 12:00:00 +0000")

set(CPACK_PACKAGE_NAME korvet)
set(CPACK_PACKAGE_CONTACT "Korvet Development <korvet@example.org>")
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(KORVET_PACKAGE_VERSION ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})

set(sources ${PROJECT_SOURCE_DIR}/packaging)
set(made ${CMAKE_BINARY_DIR}/packaging)
file(MAKE_DIRECTORY ${made})
file(READ ${PROJECT_SOURCE_DIR}/LICENSE KORVET_LICENCE)
string(REGEX REPLACE "^MIT License\n\n" "" KORVET_LICENCE "${KORVET_LICENCE}")
string(REPLACE "\n\n" "\n.\n" KORVET_LICENCE "${KORVET_LICENCE}")
string(REGEX REPLACE "\n$" "" KORVET_LICENCE "${KORVET_LICENCE}")
string(REPLACE "\n" "\n " KORVET_LICENCE " ${KORVET_LICENCE}")
foreach(file copyright changelog korvet.1 korvet-batch.1 org.korvet.Development.metainfo.xml)
    configure_file(${sources}/${file}.in ${made}/${file} @ONLY)
endforeach()

# Icons of programs and of parameter files in the sizes of the theme.
add_executable(draw_icons ${sources}/draw_icons.cpp)
target_link_libraries(draw_icons PRIVATE korvet_rules Qt6::Svg)
set_target_properties(draw_icons PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${made})
set(program_icon ${PROJECT_SOURCE_DIR}/resources/icons/korvet.svg)
set(file_icon ${sources}/application-x-korvet-fitting.svg)
add_custom_command(OUTPUT ${made}/icons.stamp
    COMMAND draw_icons ${program_icon} apps ${made}/hicolor
    COMMAND draw_icons ${file_icon} mimetypes ${made}/hicolor
    COMMAND ${CMAKE_COMMAND} -E touch ${made}/icons.stamp
    DEPENDS draw_icons ${program_icon} ${file_icon}
    VERBATIM)

# The manual of korvet-batch has the options that the program itself tells.
add_custom_command(OUTPUT ${made}/korvet-batch.1.gz
    COMMAND korvet-batch --help > ${made}/help.txt
    COMMAND awk -f ${sources}/man-options.awk ${made}/help.txt > ${made}/options.txt
    COMMAND sed -e "/^... the options that/r ${made}/options.txt" ${made}/korvet-batch.1 > ${made}/korvet-batch.whole.1
    COMMAND gzip -9nc ${made}/korvet-batch.whole.1 > ${made}/korvet-batch.1.gz
    DEPENDS korvet-batch ${sources}/man-options.awk ${made}/korvet-batch.1
    VERBATIM)
set(compressed ${made}/korvet-batch.1.gz)
function(korvet_compress source target)
    add_custom_command(OUTPUT ${made}/${target}
        COMMAND gzip -9nc ${source} > ${made}/${target}
        DEPENDS ${source}
        VERBATIM)
    set(compressed ${compressed} ${made}/${target} PARENT_SCOPE)
endfunction()
korvet_compress(${made}/korvet.1 korvet.1.gz)
korvet_compress(${made}/changelog changelog.Debian.gz)
korvet_compress(${PROJECT_SOURCE_DIR}/CHANGELOG.md changelog.gz)
add_custom_target(korvet_packaging ALL DEPENDS ${made}/icons.stamp ${compressed})

install(TARGETS korvet korvet-batch)
install(FILES ${KORVET_HELP_FILE} DESTINATION ${CMAKE_INSTALL_DATADIR}/korvet)
install(FILES ${sources}/korvet.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${made}/org.korvet.Development.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${sources}/korvet-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME korvet.xml)
install(DIRECTORY ${made}/hicolor DESTINATION ${CMAKE_INSTALL_DATADIR}/icons)
install(FILES ${program_icon} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES ${file_icon} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/mimetypes)
install(FILES ${made}/korvet.1.gz ${made}/korvet-batch.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${sources}/korvet-batch.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
    RENAME korvet-batch)
set(documents ${CMAKE_INSTALL_DATADIR}/doc/korvet)
install(FILES ${made}/copyright ${made}/changelog.Debian.gz ${made}/changelog.gz DESTINATION ${documents})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples DESTINATION ${documents} FILES_MATCHING PATTERN "*.Kvt" PATTERN "*.dxf")
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs DESTINATION ${documents} PATTERN "architecture.*" EXCLUDE)
install(FILES ${PROJECT_SOURCE_DIR}/resources/help/printing-sheets.png DESTINATION ${documents}/resources/help)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "Korvet Development")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "flat patterns for sheet-metal and plate fittings")
set(CPACK_PACKAGE_DESCRIPTION
"Layout for sheet-metal and plate work: type the sizes of a fitting, get the
flat pattern that, cut and formed, makes it. There are 39 fittings: cones,
pipes, bends, elbows, transitions, branches, breeches, pyramids, augers,
cyclones, plates and imported meshes. Patterns go to paper in full size, to
a plotter, and out as DXF, PDF, pictures and numbers.
.
korvet is the desktop program, korvet-batch does the same without a screen.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# No library links with them: the driver of the help's database, and the letters of sketches and pictures.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6sql6-sqlite, fonts-liberation, fonts-dejavu-core")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qt6-wayland")
include(CPack)
