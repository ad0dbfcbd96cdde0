# What "cmake --install" puts where a desktop finds it, and the Debian package of that.
include(GNUInstallDirs)

set(VELMORA_RELEASE_DATE "2026-11-23") # of the version in the project() line
set(desktop_files ${CMAKE_SOURCE_DIR}/resources/desktop)
set(metainfo ${CMAKE_BINARY_DIR}/velmora.metainfo.xml)
configure_file(${desktop_files}/velmora.metainfo.xml.in ${metainfo} @ONLY)

install(TARGETS velmora RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${desktop_files}/velmora.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${metainfo} DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES ${desktop_files}/velmora.svg DESTINATION ${icons}/scalable/apps)

# Launchers that draw no vectors take the nearest of these sizes.
find_program(RSVG_CONVERT rsvg-convert)
if(RSVG_CONVERT)
  set(pictures "")
  foreach(size 16 22 24 32 48 64 128 256 512)
    set(picture ${CMAKE_BINARY_DIR}/icons/${size}/velmora.png)
    add_custom_command(OUTPUT ${picture}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/icons/${size}
      COMMAND ${RSVG_CONVERT} -w ${size} -h ${size} -o ${picture} ${desktop_files}/velmora.svg
      DEPENDS ${desktop_files}/velmora.svg VERBATIM)
    list(APPEND pictures ${picture})
    install(FILES ${picture} DESTINATION ${icons}/${size}x${size}/apps)
  endforeach()
  add_custom_target(velmora_icons ALL DEPENDS ${pictures})
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME velmora)
set(CPACK_PACKAGE_VENDOR Velmora)
set(CPACK_PACKAGE_CONTACT "Velmora maintainers <maintainers@velmora.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Graphing calculator for phones, tablets and desktops")
set(CPACK_PACKAGE_DESCRIPTION
  "Calculates with real and complex numbers, keeps a history, draws functions, polar and parametric curves,
finds their zeros, intersections and extrema, and converts units.")
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_SOURCE_DIR}/build)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT) # velmora_VERSION_ARCHITECTURE.deb
set(CPACK_DEBIAN_PACKAGE_SECTION math)
# The linked libraries are found by dpkg-shlibdeps; what is loaded while the program runs is not.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS
  "fonts-inter, libqt6svg6, qml6-module-qtqml, qml6-module-qtqml-workerscript, qml6-module-qtquick, qml6-module-qtquick-window")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, libgl1-mesa-dri, qt6-wayland")
include(CPack)
