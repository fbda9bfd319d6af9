# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# find_package(ruiSDK) gives the target rui::SDK: the header and the shared library, which needs
# nothing else of a program that links against it.
include("${CMAKE_CURRENT_LIST_DIR}/ruiSDKTargets.cmake")
