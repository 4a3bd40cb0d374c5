# The Debian package, which `cpack` makes. Debian wants compressed documents, and a copyright file instead of the
# licence. These are a component that replaces "documents".
set(debian "${CMAKE_SOURCE_DIR}/packaging/debian")
set(compressed "${CMAKE_BINARY_DIR}/debian")
find_program(GZIP gzip)
if(NOT GZIP)
  return()
endif()

# debian_gzip(FILE): compresses the file as Debian's policy requires, without time and name, so that each build gives
# the same bytes.
function(debian_gzip file)
  cmake_path(GET file FILENAME name)
  add_custom_command(OUTPUT "${compressed}/${name}.gz"
    COMMAND "${CMAKE_COMMAND}" -E copy "${file}" "${compressed}/${name}"
    COMMAND "${GZIP}" -9nf "${compressed}/${name}"
    DEPENDS "${file}"
    VERBATIM)
endfunction()

file(MAKE_DIRECTORY "${compressed}")
debian_gzip("${CMAKE_SOURCE_DIR}/data/tavrelkin.1")
debian_gzip("${debian}/changelog")
add_custom_target(debian_documents ALL DEPENDS "${compressed}/tavrelkin.1.gz" "${compressed}/changelog.gz")

install(FILES "${compressed}/tavrelkin.1.gz" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1"
  COMPONENT debian EXCLUDE_FROM_ALL)
install(FILES "${compressed}/changelog.gz" "${debian}/copyright" DESTINATION "${documents}"
  COMPONENT debian EXCLUDE_FROM_ALL)
install(FILES "${debian}/lintian-overrides" DESTINATION "${CMAKE_INSTALL_DATADIR}/lintian/overrides"
  RENAME tavrelkin COMPONENT debian EXCLUDE_FROM_ALL)

# The changelog contains the package's version.
file(STRINGS "${debian}/changelog" newest LIMIT_COUNT 1)
string(REGEX MATCH "\\((.+)\\)" _ "${newest}")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${debian}/changelog")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tavrelkin)
set(CPACK_PACKAGE_CONTACT "Tavrelkin maintainers <maintainers@tavrelkin.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "screen magnifier and colour picker for designers and web authors")
set(CPACK_PACKAGE_DESCRIPTION
"A desktop colour tool. Its window follows the pointer over the whole screen,
shows the pixels there enlarged and live, and says the colour in numbers.
A key or a click takes the colour, six bars mix it, 94 suggestions go with
it, palettes keep it in Adobe swatch files, and a simulator shows how people
with a colour-vision deficiency see it. Colours travel as text through the
clipboard and by drag.
.
It reads the screen on X11, and on Wayland through the desktop's portal.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_CMAKE_PROJECTS "${CMAKE_BINARY_DIR};Tavrelkin;program;/;${CMAKE_BINARY_DIR};Tavrelkin;debian;/")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_VERSION "${CMAKE_MATCH_1}")
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Without the toolkit's Wayland platform, the program would use the session's X server, which blurs it on scaled
# screens. The other packages are needed to read the screen in such a session: the modules and the configuration are in
# packages on which the library does not depend.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
  "qt6-wayland, libpipewire-0.3-modules, pipewire-bin, xdg-desktop-portal")
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
include(CPack)
