#define DOCTEST_CONFIG_IMPLEMENT
#include <doctest/doctest.h>

#include <QApplication>

#include "platform/qt/accessibility.h"
#include "platform/qt/look.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  zelko::dress(application);
  zelko::prepareAccessibility();
  return doctest::Context(argc, argv).run();
}
