# What `cmake --install` puts where, and the Debian package that is made of it (`cpack` in the build
# folder). The desktop finds program, file type and icons by the one identifier that their names begin with.
include(GNUInstallDirs)

set(ZELVOR_APP_ID example.zelvor.Zelvor)
set(integration ${PROJECT_SOURCE_DIR}/resources/integration)
set(hicolor ${CMAKE_INSTALL_DATADIR}/icons/hicolor)

foreach(program zelvor zelvor-cli)
    if(TARGET ${program})
        install(TARGETS ${program} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
        install(FILES ${integration}/${program}.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
    endif()
endforeach()

# zelvor-cli finds it from its own place.
install(TARGETS zelvor-cli-pages RUNTIME DESTINATION ${CMAKE_INSTALL_LIBEXECDIR}/zelvor)

install(FILES ${integration}/${ZELVOR_APP_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${integration}/${ZELVOR_APP_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${integration}/${ZELVOR_APP_ID}.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)

install(FILES ${PROJECT_SOURCE_DIR}/resources/icons/zelvor.svg
    DESTINATION ${hicolor}/scalable/apps RENAME ${ZELVOR_APP_ID}.svg)
foreach(size 48 128)
    install(FILES ${integration}/zelvor-${size}.png
        DESTINATION ${hicolor}/${size}x${size}/apps RENAME ${ZELVOR_APP_ID}.png)
endforeach()
install(FILES ${integration}/application-x-zelvor-project.svg DESTINATION ${hicolor}/scalable/mimetypes)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zelvor)
set(CPACK_PACKAGE_VENDOR "The Zelvor team")
set(CPACK_PACKAGE_CONTACT "The Zelvor team <team@zelvor.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Book-keeping and trade accounting for a small business")
set(CPACK_PACKAGE_DESCRIPTION
    "Catalogs, documents and reports for the owner of a shop or a wholesale trade. One business is one file.\nThe package holds the desktop program zelvor and zelvor-cli for scripts.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What no linking tells: the plugin that reads the icons, the face of the printed forms, the time zones.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6svg6, fonts-liberation, tzdata")
include(CPack)
