#include "runtime/toolkit/ThemeColors.h"

#include <QGuiApplication>
#include <QPalette>

namespace tavrelkin {

namespace {

Color themed(QPalette::ColorRole role) {
  return Color{QGuiApplication::palette().color(QPalette::Active, role).rgb()};
}

}  // namespace

Color FillColor() {
  return themed(QPalette::Window);
}

Color TextColor() {
  return themed(QPalette::WindowText);
}

Color DarkBevelColor() {
  return themed(QPalette::Dark);
}

Color DarkTingeColor() {
  return themed(QPalette::Mid);
}

Color LightTingeColor() {
  return themed(QPalette::Light);
}

}  // namespace tavrelkin
