# The guide as HTML, from docs/guide/, where Debian's mkdocs with its material theme is installed: the target
# guide, which is left out elsewhere.

set(GUIDE_FOLDER ${CMAKE_BINARY_DIR}/guide)
set(guide_theme /usr/share/mkdocs/themes/material)
find_program(MKDOCS mkdocs)

if(MKDOCS AND EXISTS ${guide_theme})
  file(GLOB guide_sources CONFIGURE_DEPENDS
    ${CMAKE_SOURCE_DIR}/docs/guide/*.md
    ${CMAKE_SOURCE_DIR}/docs/guide/images/*.png
    ${CMAKE_SOURCE_DIR}/docs/guide-theme/*.html)
  add_custom_command(OUTPUT ${GUIDE_FOLDER}/index.html
    COMMAND ${MKDOCS} build --strict --quiet --config-file ${CMAKE_SOURCE_DIR}/docs/mkdocs.yml
      --site-dir ${GUIDE_FOLDER}
    DEPENDS ${CMAKE_SOURCE_DIR}/docs/mkdocs.yml ${guide_sources}
    COMMENT "Making the guide"
    VERBATIM)
  add_custom_target(guide ALL DEPENDS ${GUIDE_FOLDER}/index.html)
endif()

# install_guide(FOLDER): into a folder of that folder, where it is made. Without what the theme brings for
# scripts, for servers and for its own debugging.
function(install_guide folder)
  if(TARGET guide)
    install(DIRECTORY ${GUIDE_FOLDER} DESTINATION ${folder}
      PATTERN javascripts EXCLUDE
      PATTERN *.map EXCLUDE
      PATTERN 404.html EXCLUDE
      PATTERN sitemap.xml* EXCLUDE)
  endif()
endfunction()
