# The Windows program: its icon and version in the executable, and an NSIS
# installer with the game, exactly the libraries and plugins it loads, and
# Qt's Spanish texts, laid out as Qt deploys a Windows program: Qt6Core.dll
# beside the game tells Qt that the game's folder is its own, with the
# plugins and the catalogues in folders of their kind.
configure_file(${PROJECT_SOURCE_DIR}/data/supertirlo.rc.in supertirlo.rc @ONLY)
target_sources(supertirlo PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/supertirlo.rc)
set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/supertirlo.rc PROPERTIES
    OBJECT_DEPENDS ${ICONO_WINDOWS})

install(TARGETS supertirlo RUNTIME DESTINATION .)
install(IMPORTED_RUNTIME_ARTIFACTS Qt6::Core Qt6::Gui Qt6::Widgets RUNTIME DESTINATION .)
install(IMPORTED_RUNTIME_ARTIFACTS Qt6::QWindowsIntegrationPlugin LIBRARY DESTINATION platforms)
install(IMPORTED_RUNTIME_ARTIFACTS Qt6::QWindowsVistaStylePlugin LIBRARY DESTINATION styles)
# The compiler's runtime, which Qt and the game link to, from where the
# compiler keeps it.
foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll}
        OUTPUT_VARIABLE ruta OUTPUT_STRIP_TRAILING_WHITESPACE)
    install(FILES ${ruta} DESTINATION .)
endforeach()
find_file(QT_CATALOGO_ES qtbase_es.qm PATHS ${QT_HOST_PATH}/share/qt6/translations
    NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
install(FILES ${QT_CATALOGO_ES} DESTINATION translations)
# Qt's libraries and the runtime come with their symbol tables: shipped
# without, as the game is (CPack strips only what the project builds).
install(CODE "file(GLOB_RECURSE dlls \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/*.dll\")
execute_process(COMMAND ${CMAKE_STRIP} --strip-unneeded \${dlls} COMMAND_ERROR_IS_FATAL ANY)")

set(CPACK_GENERATOR NSIS)
set(CPACK_PACKAGE_NAME SuperTirlo)
set(CPACK_SYSTEM_NAME win64)
set(CPACK_PACKAGE_INSTALL_DIRECTORY "Super Tirlo")
set(CPACK_NSIS_PACKAGE_NAME "Super Tirlo")
set(CPACK_NSIS_DISPLAY_NAME "Super Tirlo")
set(CPACK_PACKAGE_INSTALL_REGISTRY_KEY "Super Tirlo")
set(CPACK_NSIS_INSTALL_ROOT "$PROGRAMFILES64")
set(CPACK_PACKAGE_EXECUTABLES supertirlo "Super Tirlo")
set(CPACK_NSIS_EXECUTABLES_DIRECTORY .)
set(CPACK_NSIS_INSTALLED_ICON_NAME supertirlo.exe)
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_NSIS_MANIFEST_DPI_AWARE ON)
# A 64-bit installer, as the program is (NSIS's default stub is 32-bit).
set(CPACK_NSIS_DEFINES "Target amd64-unicode")
