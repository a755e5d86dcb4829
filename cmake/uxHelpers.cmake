# ux_add_module(TARGET [PUBLIC libs...] [PRIVATE libs...]): a shared library
# from every source below the current directory, also reachable as ux::TARGET.
#
# Every folder that holds a header is on the build include path, and every
# header except the private *_p.h ones installs flat into include/uxQt4Ext, so
# that headers are included by class name in the build tree and from an
# installed prefix alike. PUBLIC is what the installed headers need; the rest
# stays PRIVATE so that a consumer does not have to find it.
function(ux_add_module target)
    cmake_parse_arguments(ARG "" "" "PUBLIC;PRIVATE" ${ARGN})
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS
        ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h
        ${CMAKE_CURRENT_SOURCE_DIR}/*.ui ${CMAKE_CURRENT_SOURCE_DIR}/*.qrc)
    add_library(${target} SHARED ${sources})
    add_library(ux::${target} ALIAS ${target})
    string(TOUPPER ${target} upper)
    target_compile_definitions(${target} PRIVATE ${upper}_LIBRARY)
    target_compile_features(${target} PUBLIC cxx_std_17)
    target_link_libraries(${target} PUBLIC ${ARG_PUBLIC} PRIVATE ${ARG_PRIVATE})
    _ux_add_include_dirs(${target} "${sources}")
    set_target_properties(${target} PROPERTIES
        VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
        # The libraries sit side by side in the prefix and find each other there.
        INSTALL_RPATH "$ORIGIN")
    install(TARGETS ${target} EXPORT uxQt4ExtTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    _ux_install_headers("${sources}")
    set_property(GLOBAL APPEND PROPERTY UX_EXPORTED_TARGETS ${target})
endfunction()

function(_ux_add_include_dirs target sources)
    set(dirs ${CMAKE_CURRENT_SOURCE_DIR})
    foreach(header IN LISTS sources)
        if(header MATCHES "\\.h$")
            get_filename_component(dir ${header} DIRECTORY)
            list(APPEND dirs ${dir})
        endif()
    endforeach()
    list(REMOVE_DUPLICATES dirs)
    foreach(dir IN LISTS dirs)
        target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${dir}>)
    endforeach()
    target_include_directories(${target} PUBLIC $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/uxQt4Ext>)
endfunction()

# One flat include directory: two public headers of the same name would
# overwrite each other there, so that stops the configure step.
function(_ux_install_headers sources)
    get_property(installed GLOBAL PROPERTY UX_INSTALLED_HEADERS)
    foreach(header IN LISTS sources)
        if(NOT header MATCHES "\\.h$" OR header MATCHES "_p\\.h$")
            continue()
        endif()
        get_filename_component(name ${header} NAME)
        if(name IN_LIST installed)
            message(FATAL_ERROR "Two public headers are named ${name}; the second is ${header}")
        endif()
        list(APPEND installed ${name})
        install(FILES ${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/uxQt4Ext)
    endforeach()
    set_property(GLOBAL PROPERTY UX_INSTALLED_HEADERS "${installed}")
endfunction()

# Qt modules named as Qt5::<Name> in the given link property of the exported
# targets, as a list of <Name>s.
function(ux_collect_qt_components out property)
    get_property(targets GLOBAL PROPERTY UX_EXPORTED_TARGETS)
    set(components)
    foreach(target IN LISTS targets)
        get_target_property(libs ${target} ${property})
        string(REGEX MATCHALL "Qt5::[A-Za-z]+" found "${libs}")
        foreach(lib IN LISTS found)
            string(REPLACE "Qt5::" "" name ${lib})
            list(APPEND components ${name})
        endforeach()
    endforeach()
    list(REMOVE_DUPLICATES components)
    set(${out} ${components} PARENT_SCOPE)
endfunction()

# The installed CMake package and pkg-config file. The Qt modules they ask
# for are read from what the exported targets actually link, so a module
# added to a link line can never be missing from the package.
function(ux_install_package)
    ux_collect_qt_components(public INTERFACE_LINK_LIBRARIES)
    ux_collect_qt_components(all LINK_LIBRARIES)
    set(private ${all})
    if(public)
        list(REMOVE_ITEM private ${public})
    endif()
    set(UX_QT_PUBLIC_COMPONENTS ${public})
    set(config_dir ${CMAKE_INSTALL_LIBDIR}/cmake/uxQt4Ext)

    include(CMakePackageConfigHelpers)
    write_basic_package_version_file(
        ${PROJECT_BINARY_DIR}/uxQt4ExtConfigVersion.cmake
        VERSION ${PROJECT_VERSION} COMPATIBILITY SameMajorVersion)
    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/uxQt4ExtConfig.cmake.in
        ${PROJECT_BINARY_DIR}/uxQt4ExtConfig.cmake
        INSTALL_DESTINATION ${config_dir})
    install(EXPORT uxQt4ExtTargets NAMESPACE ux:: DESTINATION ${config_dir})
    install(FILES ${PROJECT_BINARY_DIR}/uxQt4ExtConfig.cmake
                  ${PROJECT_BINARY_DIR}/uxQt4ExtConfigVersion.cmake
        DESTINATION ${config_dir})

    _ux_pc_modules(UX_PC_REQUIRES "${public}")
    _ux_pc_modules(UX_PC_REQUIRES_PRIVATE "${private}")
    # Relative to the .pc file, so the prefix can be chosen at install time
    # (cmake --install --prefix) or moved afterwards.
    set(pc_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
    file(RELATIVE_PATH UX_PC_PREFIX /root/${pc_dir} /root)
    string(REGEX REPLACE "/$" "" UX_PC_PREFIX "${UX_PC_PREFIX}")
    configure_file(${PROJECT_SOURCE_DIR}/cmake/uxQt4Ext.pc.in ${PROJECT_BINARY_DIR}/uxQt4Ext.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/uxQt4Ext.pc DESTINATION ${pc_dir})
endfunction()

function(_ux_pc_modules out components)
    set(modules)
    foreach(name IN LISTS components)
        list(APPEND modules Qt5${name})
    endforeach()
    string(REPLACE ";" " " modules "${modules}")
    set(${out} "${modules}" PARENT_SCOPE)
endfunction()
