# With UX_BUNDLED_HOST_MODULES=OFF the library links the host's own platform,
# icon and style modules. The host provides them as the targets ux::uxUtils,
# ux::uxIconManager and ux::uxCorvaStyle: either it defines them before it adds
# this project with add_subdirectory(), or UX_HOST_MODULES_FILE names a CMake
# file that defines them (typically IMPORTED targets of the host's libraries).
# The headers must keep the names the library includes (uxPlatform.h,
# uxLog.h, uxIconManager.h, uxIconCache.h, uxStyle.h, ...).
if(UX_HOST_MODULES_FILE)
    include(${UX_HOST_MODULES_FILE})
endif()
foreach(module IN ITEMS uxUtils uxIconManager uxCorvaStyle)
    if(NOT TARGET ux::${module})
        message(FATAL_ERROR
            "UX_BUNDLED_HOST_MODULES is OFF but no target ux::${module} exists: define it before "
            "add_subdirectory(uxQt4Ext), or name a file that defines it in UX_HOST_MODULES_FILE")
    endif()
endforeach()
