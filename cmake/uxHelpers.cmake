# ux_add_module(TARGET DIR [LIBS ...]): a shared library from every source
# below DIR, with each folder that holds a header on the public include path,
# so that headers are included by class name.
function(ux_add_module target)
    cmake_parse_arguments(ARG "" "" "LIBS" ${ARGN})
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS
        ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h
        ${CMAKE_CURRENT_SOURCE_DIR}/*.ui ${CMAKE_CURRENT_SOURCE_DIR}/*.qrc)
    add_library(${target} SHARED ${sources})
    string(TOUPPER ${target} upper)
    target_compile_definitions(${target} PRIVATE ${upper}_LIBRARY)
    target_link_libraries(${target} PUBLIC ${ARG_LIBS})
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
    set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
    install(TARGETS ${target} EXPORT uxQt4ExtTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    foreach(header IN LISTS sources)
        if(header MATCHES "\\.h$" AND NOT header MATCHES "_p\\.h$")
            install(FILES ${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/uxQt4Ext)
        endif()
    endforeach()
endfunction()
