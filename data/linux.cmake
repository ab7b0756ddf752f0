# Installed like any desktop application; a game goes to games/.
set(APP_ID org.supertirlo.SuperTirlo)
set(TIRLO_MAINTAINER "Super Tirlo packager <packager@example.invalid>" CACHE STRING
    "Name and address of whoever builds the Debian package")
set(DOC_DIR ${CMAKE_INSTALL_DATADIR}/doc/supertirlo)
configure_file(${PROJECT_SOURCE_DIR}/data/changelog.in changelog @ONLY)
set(COMPRIMIDOS)
foreach(fuente ${CMAKE_CURRENT_BINARY_DIR}/changelog ${PROJECT_SOURCE_DIR}/data/supertirlo.6)
    get_filename_component(nombre ${fuente} NAME)
    add_custom_command(OUTPUT ${nombre}.gz
        COMMAND gzip -9nc ${fuente} > ${nombre}.gz
        DEPENDS ${fuente})
    list(APPEND COMPRIMIDOS ${CMAKE_CURRENT_BINARY_DIR}/${nombre}.gz)
endforeach()
add_custom_target(documentos ALL DEPENDS ${COMPRIMIDOS})

install(TARGETS supertirlo RUNTIME DESTINATION games)
install(FILES ${PROJECT_SOURCE_DIR}/data/${APP_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${PROJECT_SOURCE_DIR}/data/${APP_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${PROJECT_SOURCE_DIR}/icons/supertirlo.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(DIRECTORY ${ICONOS_DIR}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/supertirlo.6.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)
install(FILES ${PROJECT_SOURCE_DIR}/data/copyright ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz DESTINATION ${DOC_DIR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME supertirlo)
set(CPACK_PACKAGE_DESCRIPTION "Super Tirlo is tic-tac-toe for one or two people, with its whole
interface in Spanish or English. Play against the computer at three levels,
from Easy to You can not win, or against a friend at the same machine with
both names announced at every turn.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${TIRLO_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The face the layout is measured for and Qt's own Spanish texts; the computed
# library dependencies are added.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation2, qt6-translations-l10n")
# Native Wayland windows only where no X server takes the game; on a Wayland
# desktop it runs through XWayland.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qt6-wayland")
