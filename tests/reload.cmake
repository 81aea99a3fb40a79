# The gallery's live skin reload is tested inside the GUI suite; its source is
# compiled into the suite, so the test needs no gallery build.
target_sources(vorn_gui_tests PRIVATE ${PROJECT_SOURCE_DIR}/examples/gallery/SkinReload.cpp)
target_include_directories(vorn_gui_tests PRIVATE ${PROJECT_SOURCE_DIR}/examples/gallery)
