# SPDX-License-Identifier: GPL-3.0-or-later
# The Debian package: `cpack -G DEB` in the build folder writes gildenway_<version>_<arch>.deb,
# installing under /usr, its library dependencies computed by dpkg-shlibdeps.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME gildenway)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "The Gildenway developers")
set(CPACK_PACKAGE_CONTACT "The Gildenway developers <gildenway@users.noreply.github.com>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "property-trading dice game for two to six players")
# Debian wants the lines of the long description under 80 characters.
set(CPACK_PACKAGE_DESCRIPTION
    "Throw two dice and walk a ring of forty cells carrying the streets of the
city of Kestrovia: buy cells, pay rent, build hotels on the streets of a
whole district, mortgage and release, trade cells for money and draw JFL
cards. People and computer players share one screen; the last player
standing wins.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://gildenway.github.io/)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Every picture and window is drawn in DejaVu; the sounds need a Qt Multimedia back end.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-dejavu-core")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-speech-flite-plugin")

# What Debian asks of every package's documentation: the copyright, a changelog and the
# manual page, the last two compressed the way its tools do it (gzip -9n).
set(GILDENWAY_DOC_DIR ${CMAKE_INSTALL_DATADIR}/doc/gildenway)
set(GILDENWAY_GZIPPED ${CMAKE_BINARY_DIR}/package/changelog.gz ${CMAKE_BINARY_DIR}/package/gildenway.6.gz)
add_custom_command(
  OUTPUT ${GILDENWAY_GZIPPED}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/package
  COMMAND gzip -9nc ${CMAKE_SOURCE_DIR}/data/changelog > ${CMAKE_BINARY_DIR}/package/changelog.gz
  COMMAND gzip -9nc ${CMAKE_SOURCE_DIR}/data/gildenway.6 > ${CMAKE_BINARY_DIR}/package/gildenway.6.gz
  DEPENDS ${CMAKE_SOURCE_DIR}/data/changelog ${CMAKE_SOURCE_DIR}/data/gildenway.6
  COMMENT "Compressing the changelog and the manual page")
add_custom_target(gildenway_package_docs ALL DEPENDS ${GILDENWAY_GZIPPED})
install(FILES ${CMAKE_SOURCE_DIR}/data/copyright ${CMAKE_BINARY_DIR}/package/changelog.gz
        DESTINATION ${GILDENWAY_DOC_DIR})
install(FILES ${CMAKE_BINARY_DIR}/package/gildenway.6.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)

include(CPack)

# The package built, checked by lintian, unpacked and started. Not in the sanitizer build:
# nobody installs an instrumented program, and the Release build's test shows the package.
if(BUILD_TESTING AND NOT GILDENWAY_SANITIZE)
  add_test(NAME debian_package_builds_unpacks_and_starts
           COMMAND ${CMAKE_COMMAND} -DBUILD=${CMAKE_BINARY_DIR}
                   -DWORK=${CMAKE_BINARY_DIR}/check-package -DVERSION=${PROJECT_VERSION}
                   -P ${CMAKE_SOURCE_DIR}/cmake/checks/DebPackage.cmake)
  set_tests_properties(debian_package_builds_unpacks_and_starts PROPERTIES TIMEOUT 600)
endif()
