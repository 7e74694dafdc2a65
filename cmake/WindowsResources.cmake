# SPDX-License-Identifier: GPL-3.0-or-later
# velmora_program(NAME DESCRIPTION): gives a program its version, icon and manifest on Windows.
function(velmora_program name description)
  if(NOT WIN32)
    return()
  endif()
  enable_language(RC)
  set(VELMORA_PROGRAM ${name})
  set(VELMORA_DESCRIPTION "${description}")
  set(VELMORA_ICON "${PROJECT_SOURCE_DIR}/resources/velmora.ico")
  set(VELMORA_MANIFEST "${CMAKE_CURRENT_BINARY_DIR}/${name}.manifest")
  configure_file("${PROJECT_SOURCE_DIR}/packaging/windows/velmora.manifest.in"
    "${VELMORA_MANIFEST}" @ONLY)
  configure_file("${PROJECT_SOURCE_DIR}/packaging/windows/program.rc.in"
    "${CMAKE_CURRENT_BINARY_DIR}/${name}.rc" @ONLY)
  target_sources(${name} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/${name}.rc")
endfunction()
