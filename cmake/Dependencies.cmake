# SPDX-License-Identifier: GPL-3.0-or-later
set(QT_MODULES Core Gui Network Concurrent)
if(VELMORA_BUILD_GUI)
  list(APPEND QT_MODULES Widgets)
endif()
if(VELMORA_BUILD_TESTS)
  list(APPEND QT_MODULES Test)
endif()
find_package(Qt5 5.15 REQUIRED COMPONENTS ${QT_MODULES})

find_package(PkgConfig REQUIRED)
pkg_check_modules(LIBAV REQUIRED IMPORTED_TARGET libavformat libavcodec libavutil libswresample)
pkg_check_modules(TURBOJPEG REQUIRED IMPORTED_TARGET libturbojpeg)
pkg_check_modules(EXIV2 REQUIRED IMPORTED_TARGET exiv2)
