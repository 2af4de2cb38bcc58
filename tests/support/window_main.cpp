#include "grid/ui/theme.h"

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

// Window tests run on the display they are given, else without one.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (qEnvironmentVariableIsEmpty("DISPLAY")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  // Settings of the tests' own, gone with them.
  const QTemporaryDir settings;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
  QApplication::setOrganizationName(QStringLiteral("lunavox"));
  QApplication::setApplicationName(QStringLiteral("lunavox-tests"));
  lunavox::theme::apply(application);
  return RUN_ALL_TESTS();
}
