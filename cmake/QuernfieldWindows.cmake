# What makes a program at home on Windows: its icon, its version and its manifest.

if(WIN32)
    enable_language(RC)
endif()

# qf_windows_program(TARGET DESCRIPTION): Windows shows the description in its lists of programs. Elsewhere it
# does nothing.
function(qf_windows_program target description)
    if(NOT WIN32)
        return()
    endif()
    set(resources "${CMAKE_CURRENT_BINARY_DIR}/${target}.rc")
    set(manifest "${CMAKE_CURRENT_BINARY_DIR}/${target}.manifest")
    configure_file("${CMAKE_SOURCE_DIR}/packaging/windows/quernfield.manifest.in" "${manifest}" @ONLY)
    configure_file("${CMAKE_SOURCE_DIR}/packaging/windows/quernfield.rc.in" "${resources}" @ONLY)
    target_sources(${target} PRIVATE "${resources}")
    set_source_files_properties("${resources}" PROPERTIES OBJECT_DEPENDS
        "${CMAKE_SOURCE_DIR}/packaging/windows/quernfield.ico;${manifest}")
    if(MINGW)
        # The same sources make the same bytes, whenever they are linked.
        target_link_options(${target} PRIVATE LINKER:--no-insert-timestamp)
    endif()
endfunction()
