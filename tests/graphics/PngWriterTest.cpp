#include "graphics/PngWriter.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <stdexcept>

#include "TestCanvas.h"

TEST(PngWriter, WritesWhatWasDrawn) {
  std::string path = testing::TempDir() + "wexa-png-writer-test.png";
  TestCanvas canvas(7, 5);
  canvas.Paint([](Painter& p) { p.FillRect({1, 1, 3, 3}, kRed); });
  WritePng(canvas.surface, path);
  cairo_surface_t* image = cairo_image_surface_create_from_png(path.c_str());
  ASSERT_EQ(cairo_image_surface_get_width(image), 7);
  ASSERT_EQ(cairo_image_surface_get_height(image), 5);
  const unsigned char* row =
      cairo_image_surface_get_data(image) + cairo_image_surface_get_stride(image);
  EXPECT_EQ(row[4] | row[5] << 8 | row[6] << 16, 0xFF0000);
  EXPECT_EQ(row[0], 0xFF);
  cairo_surface_destroy(image);
  std::filesystem::remove(path);
}

TEST(PngWriter, FailureNamesTheFile) {
  TestCanvas canvas(2, 2);
  try {
    WritePng(canvas.surface, "/no/such/folder/picture.png");
    FAIL() << "written";
  } catch (const std::runtime_error& error) {
    EXPECT_THAT(error.what(), testing::HasSubstr("/no/such/folder/picture.png"));
  }
}
