# SPDX-FileCopyrightText: 2026 The Quillane developers
# SPDX-License-Identifier: GPL-3.0-or-later

# The Debian package that cpack makes; scripts/package makes and checks it.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quillane)
set(CPACK_PACKAGE_CONTACT "The Quillane developers <quillane@quillane.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "preview and edit themes of early colour phones")
set(CPACK_PACKAGE_DESCRIPTION
"Quillane shows the themes (.thm files) of early colour phones as the phones
would, exact to the pixel, for phones with screens of 101 x 80 and of
128 x 160 pixels. It makes and changes themes, cuts pictures to the sizes
that themes ask for, and sends themes to a phone.

The tool thmtool does the same without a window: it renders, describes,
packs and changes themes, and paints their thumbnails for file
managers.")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
    GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The screens are written in its faces.
set(CPACK_DEBIAN_PACKAGE_DEPENDS fonts-wine)
# What makes the type of theme files known, opens the help, and sends themes to a phone.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "desktop-file-utils, shared-mime-info, xdg-utils, gnome-bluetooth-sendto | blueman")
include(CPack)
