#include <gtest/gtest.h>

#include <QApplication>
#include <QTranslator>
#include <cstdio>
#include <cstdlib>

#include "BackgroundWork.h"
#include "FormRunsTest.h"
#include "FormStyle.h"

// Forms need an application, but no display. FOLIONET_TEST_TRANSLATION names a .qm file to run the tests in.
int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  testing::InitGoogleTest(&argc, argv);
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  const QApplication app(argc, argv);
  folionet::DressApplication();
  QTranslator translator;
  if (const char* file = std::getenv("FOLIONET_TEST_TRANSLATION"); file != nullptr) {
    if (!translator.load(QString::fromLocal8Bit(file))) {
      std::fprintf(stderr, "%s cannot be loaded\n", file);
      return 1;
    }
    QApplication::installTranslator(&translator);
  }
  folionet::RegisterFormRuns();
  const int status = RUN_ALL_TESTS();
  folionet::EndWhereTasksRun(status);
  return status;
}
