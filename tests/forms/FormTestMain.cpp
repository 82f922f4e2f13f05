#include <gtest/gtest.h>

#include <QApplication>
#include <cstdlib>

// Forms need an application, but no display.
int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  testing::InitGoogleTest(&argc, argv);
  const QApplication app(argc, argv);
  return RUN_ALL_TESTS();
}
