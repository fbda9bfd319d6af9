# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# Debian packages, made by `cpack` in the build folder: "nerix-viewer" for users and
# "nerix-viewer-dev" for who writes plug-ins or uses the analytics library. What is installed without
# a component is for users.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME nerix-viewer)
set(CPACK_PACKAGE_VENDOR Ostrand)
set(CPACK_PACKAGE_CONTACT "Ostrand <support@ostrand.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://www.ostrand.example/nerix")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL Unspecified Development)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)

set(CPACK_DEBIAN_UNSPECIFIED_PACKAGE_NAME nerix-viewer)
set(CPACK_COMPONENT_UNSPECIFIED_DESCRIPTION
    "viewer for industrial cameras\n Finds GenICam cameras, shows and changes their features, and grabs images.")
# Libraries are found by what the programs are linked to; the modules of the QML pages and the
# readers of picture formats are loaded by name.
set(CPACK_DEBIAN_UNSPECIFIED_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS
    "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}" "${CMAKE_BINARY_DIR}/${NERIX_PLUGIN_DIR}")
string(JOIN ", " CPACK_DEBIAN_UNSPECIFIED_PACKAGE_DEPENDS
    qml-module-qtquick2 qml-module-qtquick-window2 qml-module-qtquick-controls2
    qml-module-qtquick-templates2 qml-module-qtgraphicaleffects libqt5svg5
    qt5-image-formats-plugins)
set(CPACK_DEBIAN_UNSPECIFIED_PACKAGE_RECOMMENDS "fonts-dejavu-core | fonts-freefont-ttf, fonts-noto-cjk, qttranslations5-l10n")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME nerix-viewer-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
    "viewer for industrial cameras (development files)\n Headers of the plug-in interface and of the analytics library.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "nerix-viewer (= ${PROJECT_VERSION}), qtbase5-dev, qtdeclarative5-dev")

include(CPack)
