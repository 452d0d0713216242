# kestrova_tool_documents(TOOL): the manual page and the bash completion that a tool prints of itself, installed with it.
function(kestrova_tool_documents tool)
    set(folder "${PROJECT_BINARY_DIR}/documents")
    set(page "${folder}/${tool}.1")
    set(completion "${folder}/${tool}")
    add_custom_command(
        OUTPUT "${page}" "${completion}"
        COMMAND "${CMAKE_COMMAND}" -E make_directory "${folder}"
        COMMAND ${tool} --print-manual-page > "${page}"
        COMMAND ${tool} --print-completion > "${completion}"
        DEPENDS ${tool}
        COMMENT "Writing the manual page and the completion of ${tool}"
        VERBATIM)
    add_custom_target(${tool}Documents ALL DEPENDS "${page}" "${completion}")
    if(KESTROVA_INSTALL_TOOLS)
        install(FILES "${page}" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT tools)
        install(FILES "${completion}" DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" COMPONENT tools)
    endif()
endfunction()
