# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
# Run by CPack between the installation into its folder and the making of the package: what Debian wants of
# every package's files.
set(debian "${CMAKE_CURRENT_LIST_DIR}")
set(share "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share")

function(put source target)
  configure_file("${debian}/${source}" "${share}/${target}" COPYONLY FILE_PERMISSIONS
                 OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
endfunction()

function(compress file)
  execute_process(COMMAND gzip --no-name --best --force "${file}" COMMAND_ERROR_IS_FATAL ANY)
endfunction()

put(copyright doc/lorva/copyright)
put(changelog doc/lorva/changelog.Debian)
put(lintian-overrides lintian/overrides/lorva)
compress("${share}/doc/lorva/changelog.Debian")

file(GLOB_RECURSE pages "${share}/man/*.[1-8]")
foreach(page IN LISTS pages)
  compress("${page}")
endforeach()
