# Read by cpack once for each kind of package: which components it is made of.
list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 build)
if(CPACK_GENERATOR STREQUAL DEB)
  set(CPACK_INSTALL_CMAKE_PROJECTS "${build};sorvane;debian;/")
else()
  set(CPACK_INSTALL_CMAKE_PROJECTS "${build};sorvane;Unspecified;/;${build};sorvane;bundle;/")
endif()
