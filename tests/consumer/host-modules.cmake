# A host's platform, icon and style modules as imported targets, for a build
# with -DUX_BUNDLED_HOST_MODULES=OFF -DUX_HOST_MODULES_FILE=<this file>. Here
# the host is played by the default modules installed in UX_HOST_PREFIX.
include(GNUInstallDirs)
foreach(module IN ITEMS uxUtils uxIconManager uxCorvaStyle)
    add_library(ux::${module} SHARED IMPORTED)
    set_target_properties(ux::${module} PROPERTIES
        IMPORTED_LOCATION ${UX_HOST_PREFIX}/${CMAKE_INSTALL_LIBDIR}/lib${module}.so
        INTERFACE_INCLUDE_DIRECTORIES ${UX_HOST_PREFIX}/${CMAKE_INSTALL_INCLUDEDIR}/uxQt4Ext)
endforeach()
target_link_libraries(ux::uxUtils INTERFACE Qt5::Core)
target_link_libraries(ux::uxIconManager INTERFACE Qt5::Gui)
target_link_libraries(ux::uxCorvaStyle INTERFACE Qt5::Gui)
