# Debian packages, one per install component:
#   libvorn0           runtime  the two shared libraries (SONAME libvorn.so.0)
#   libvorn-dev        dev      headers, link names, CMake package, vorn.pc
#   vorn-skin-default  skin     the default skin (architecture-independent)
#   vorn-tools         tools    vorn-sts, vorn-maskgen, vornpack and vorn-gallery
# Build them with `cpack -G DEB` in a (release) build tree.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vorn)
set(CPACK_PACKAGE_VENDOR "Vorn")
set(CPACK_PACKAGE_CONTACT "Vorn developers <vorn@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Skinnable custom-drawn controls for wxWidgets")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)

set(CPACK_COMPONENTS_ALL runtime dev skin)
if(VORN_BUILD_TOOLS OR VORN_BUILD_EXAMPLES)
  list(APPEND CPACK_COMPONENTS_ALL tools)
endif()

set(_vorn_exact "(= ${PROJECT_VERSION})")

# The libraries: dependencies from what they link (dpkg-shlibdeps), and a
# shlibs file so that packages built against them depend on libvorn0.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libvorn0)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)  # only packages with shared libraries get one
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS vorn-skin-default)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
    "Skinnable custom-drawn controls for wxWidgets - shared libraries\n"
    "The toolkit library and the imaging layer it builds on.")

# The CMake package checks that the default skin is installed, and a host
# built against it needs wxWidgets and OpenGL headers.
set(CPACK_DEBIAN_DEV_PACKAGE_NAME libvorn-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS
    "libvorn0 ${_vorn_exact}, vorn-skin-default ${_vorn_exact}, libwxgtk3.2-dev, libgl-dev, libglu1-mesa-dev, pkg-config")
set(CPACK_COMPONENT_DEV_DESCRIPTION
    "Skinnable custom-drawn controls for wxWidgets - development files\n"
    "Headers, the CMake package (find_package(Vorn)) and vorn.pc for pkg-config.")

set(CPACK_DEBIAN_SKIN_PACKAGE_NAME vorn-skin-default)
set(CPACK_DEBIAN_SKIN_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_SKIN_PACKAGE_SECTION graphics)
set(CPACK_COMPONENT_SKIN_DESCRIPTION
    "Skinnable custom-drawn controls for wxWidgets - default skin\n"
    "Image scripts, masks, colours, fonts and messages of the dark-slate default skin.")

# The tools link the same wxWidgets libraries as libvorn0, whose dependencies
# therefore cover them.
set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME vorn-tools)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "libvorn0 ${_vorn_exact}, vorn-skin-default ${_vorn_exact}")
set(CPACK_COMPONENT_TOOLS_DESCRIPTION
    "Skinnable custom-drawn controls for wxWidgets - skin tools and gallery\n"
    "vorn-sts renders and checks image scripts, vorn-maskgen makes masks, vornpack packs\n"
    "skins into archives, and vorn-gallery shows every control on a skin.")

include(CPack)
