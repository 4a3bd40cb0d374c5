#include "fakes/RuntimeTest.h"

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include <QApplication>
#include <QTest>

#include "runtime/toolkit/Runtime.h"

namespace tavrelkin {

namespace {

// The test program has one toolkit, since it can't be made twice. It must be destroyed before static objects are.
class Toolkit : public ::testing::Environment {
 public:
  void SetUp() override { setUpToolkit(application_.emplace(count_, arguments_.data())); }
  void TearDown() override { application_.reset(); }

 private:
  std::string name_ = "test";
  std::array<char*, 2> arguments_{name_.data(), nullptr};
  int count_ = 1;
  std::optional<QApplication> application_;
};

// The test library owns it.
[[maybe_unused]] const ::testing::Environment* const toolkit = ::testing::AddGlobalTestEnvironment(new Toolkit);

}  // namespace

RuntimeTest::RuntimeTest() {
  auto desktop = std::make_unique<FakeDesktop>();
  fake_ = desktop.get();
  installDesktop(std::move(desktop));
  application_ = New<Application>();
}

RuntimeTest::~RuntimeTest() {
  shutDownRuntime();
  application_ = nullptr;
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  processEvents();
  installDesktop(nullptr);
  // A quit that came while no event loop was running would end every later loop at once.
  runUntilQuit([] { QCoreApplication::quit(); });
}

void RuntimeTest::start(Ref<Application> application) {
  application_ = std::move(application);
  application_->AddMenuHandlers();
  application_->MakeDefaultView();
  application_->Event_Open();
}

int RuntimeTest::runUntilQuit(const std::function<void()>& first) {
  QMetaObject::invokeMethod(QCoreApplication::instance(), first, Qt::QueuedConnection);
  return QCoreApplication::exec();
}

void RuntimeTest::processEvents() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

bool RuntimeTest::waitUntil(const std::function<bool()>& done) {
  return QTest::qWaitFor(done, 5000);
}

}  // namespace tavrelkin
