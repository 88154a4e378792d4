# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later

# What belongs to the desktop lies beside share/quillane, in the build tree as in an installation,
# for the program associates its files from there.
set(shared)

# Ships a file under another name: `to` is its path in the share folder.
function(quillane_share file to)
  set(target "${CMAKE_BINARY_DIR}/share/${to}")
  get_filename_component(folder "${to}" DIRECTORY)
  add_custom_command(OUTPUT "${target}"
    COMMAND ${CMAKE_COMMAND} -E copy "${file}" "${target}"
    DEPENDS "${file}"
    VERBATIM)
  install(FILES "${target}" DESTINATION "${CMAKE_INSTALL_DATADIR}/${folder}")
  set(shared ${shared} "${target}" PARENT_SCOPE)
endfunction()

# The same, compressed without a time stamp so that the same file gives the same bytes.
find_program(GZIP gzip REQUIRED)
function(quillane_share_compressed file to)
  set(target "${CMAKE_BINARY_DIR}/share/${to}.gz")
  get_filename_component(folder "${to}" DIRECTORY)
  add_custom_command(OUTPUT "${target}"
    COMMAND ${CMAKE_COMMAND} -E make_directory "${CMAKE_BINARY_DIR}/share/${folder}"
    COMMAND ${GZIP} -9nc "${file}" > "${target}"
    DEPENDS "${file}"
    VERBATIM)
  install(FILES "${target}" DESTINATION "${CMAKE_INSTALL_DATADIR}/${folder}")
  set(shared ${shared} "${target}" PARENT_SCOPE)
endfunction()

set(here ${CMAKE_CURRENT_SOURCE_DIR})
set(generated ${CMAKE_BINARY_DIR}/generated/data)
set(mime_type application/x-quillane-theme)
string(REPLACE "/" "-" mime_icon ${mime_type})

quillane_share(${here}/desktop/quillane-theme.xml mime/packages/quillane-theme.xml)
quillane_share(${here}/desktop/quillane.thumbnailer thumbnailers/quillane.thumbnailer)
foreach(size 16 32 48 64 128)
  quillane_share(${here}/icons/quillane-theme-${size}.png
                 icons/hicolor/${size}x${size}/mimetypes/${mime_icon}.png)
endforeach()
quillane_share_compressed(${here}/man/thmtool.1 man/man1/thmtool.1)

if(QUILLANE_WINDOW)
  set(metainfo example.quillane.Quillane.metainfo.xml)
  configure_file(desktop/${metainfo}.in ${generated}/${metainfo} @ONLY)
  quillane_share(${generated}/${metainfo} metainfo/${metainfo})
  quillane_share(${here}/desktop/quillane.desktop applications/quillane.desktop)
  foreach(size 16 32 48 64 128 256)
    quillane_share(${here}/icons/quillane-${size}.png
                   icons/hicolor/${size}x${size}/apps/quillane.png)
  endforeach()
  quillane_share_compressed(${here}/man/quillane.1 man/man1/quillane.1)
endif()

configure_file(debian/changelog.in ${generated}/changelog @ONLY)
quillane_share(${here}/debian/copyright doc/quillane/copyright)
quillane_share_compressed(${CMAKE_SOURCE_DIR}/CHANGELOG.md doc/quillane/changelog)
quillane_share_compressed(${generated}/changelog doc/quillane/changelog.Debian)
