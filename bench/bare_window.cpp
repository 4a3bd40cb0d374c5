// The reference for start and memory: a minimal Qt window with a menu bar. Its content has the size and the colour of
// the tool window's, so that both are recognised as painted in the same way.

#include <QApplication>
#include <QMenuBar>
#include <QPalette>
#include <QVBoxLayout>
#include <QWidget>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QApplication::setStyle(QStringLiteral("fusion"));

  QWidget window;
  auto* const layout = new QVBoxLayout(&window);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSizeConstraint(QLayout::SetFixedSize);

  auto* const bar = new QMenuBar(&window);
  for (const char* const title : {"File", "Edit", "Bare", "View", "Tools"})
    bar->addMenu(QString::fromLatin1(title))->addAction(QStringLiteral("Nothing"));
  layout->setMenuBar(bar);

  auto* const content = new QWidget(&window);
  content->setFixedSize(448, 262);
  content->setPalette(QPalette(QColor(0xCCCCCC)));
  content->setAutoFillBackground(true);
  layout->addWidget(content);

  window.setWindowTitle(QStringLiteral("Bare window"));
  window.show();
  return QApplication::exec();
}
