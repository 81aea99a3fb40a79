# The PNG tests write fixtures (grey, palette, 16-bit, interlaced) with libpng.
target_link_libraries(vornhost_tests PRIVATE PNG::PNG)
