# Run by CPack once the packages are made. It lets a package with a shared object in a folder below
# /usr/lib call ldconfig, which looks into no such folder: the packages have no maintainer script.
find_program(dpkg_deb dpkg-deb REQUIRED)
foreach(package ${CPACK_PACKAGE_FILES})
  set(folder ${package}.unpacked)
  execute_process(COMMAND ${dpkg_deb} --raw-extract ${package} ${folder} COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE ${folder}/DEBIAN/postinst ${folder}/DEBIAN/postrm)
  execute_process(COMMAND ${dpkg_deb} --root-owner-group --build ${folder} ${package}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE_RECURSE ${folder})
endforeach()
