#include <array>
#include <string>
#include <vector>

#include <QDBusObjectPath>

#include <sys/mman.h>
#include <unistd.h>

#include "runtime/desktop/portal/PortalTest.h"
#include "runtime/desktop/portal/ScreenCastPortal.h"

namespace tavrelkin::test {
namespace {

using Failure = ScreenCastPortal::Failure;
using Ending = ScreenCastPortal::Ending;
using Size = CastStream::Size;

class ScreenCastPortalTest : public PortalTest {
 protected:
  ScreenCastPortalTest() { restartPortal(); }

  void restartPortal() {
    portal.reset();
    portal.emplace(bus.address());
    portal->connectPipeWire = [] { return memfd_create("pipewire", 0); };
  }

  // Opens a cast, and forgets the results of earlier ones.
  void open() {
    result.reset();
    cast->open([this](ScreenCastPortal::Result given) {
      EXPECT_FALSE(result) << "answered twice";
      result = std::move(given);
    });
  }

  bool gotResult() {
    return waitUntil([this] { return result.has_value(); });
  }

  bool gotCast() { return gotResult() && std::holds_alternative<ScreenCast>(*result); }

  const std::vector<CastStream>& streams() const { return std::get<ScreenCast>(*result).streams; }

  bool waitForCall(const QString& method, int count = 1) {
    return waitUntil([&] { return portal->calls[method] >= count; });
  }

  std::optional<ScreenCastPortal> cast{std::in_place, connection.bus, patient};
  std::optional<ScreenCastPortal::Result> result;
};

TEST_F(ScreenCastPortalTest, GivesTheMonitorsAndTheConnectionToPipeWire) {
  std::array<int, 2> ends{};
  ASSERT_EQ(pipe(ends.data()), 0);
  const FileDescriptor reader(ends[0]);
  portal->connectPipeWire = [&] { return ends[1]; };
  portal->streams = {monitor(7, {0, 0}, {1280, 1024}), monitor(9, {-1920, 40}, {1920, 1080})};
  open();
  ASSERT_TRUE(gotCast());
  ASSERT_EQ(streams().size(), 2U);
  EXPECT_EQ(streams()[0].node, 7U);
  EXPECT_EQ(streams()[1].node, 9U);
  EXPECT_EQ(streams()[1].position, (ScreenPoint{-1920, 40}));
  EXPECT_EQ(streams()[1].size, (Size{1920, 1080}));

  char received = 0;
  ASSERT_EQ(write(std::get<ScreenCast>(*result).pipeWire.get(), "x", 1), 1);
  EXPECT_EQ(read(reader.get(), &received, 1), 1);

  const auto& options = portal->options[QStringLiteral("SelectSources")];
  EXPECT_EQ(options[QStringLiteral("types")], 1U);
  EXPECT_EQ(options[QStringLiteral("multiple")], true);
  EXPECT_EQ(options[QStringLiteral("cursor_mode")], 4U);
  EXPECT_EQ(options[QStringLiteral("persist_mode")], 1U);
}

// A fault or a limit of the portal, the expected result, and whether the portal may be asked for a session.
struct Wrong {
  std::string what;
  std::function<void(FakePortal&)> play;
  Failure failure = Failure::failed;
  bool mayBeAsked = true;
  bool isSilent = false;
};

Wrong silent(const char* method) {
  return {std::string("no reply to ") + method, [=](auto& p) { p.mute << QLatin1String(method); }, Failure::failed,
          true, true};
}

Wrong undecided(const char* method) {
  return {std::string("no response to ") + method, [=](auto& p) { p.undecided << QLatin1String(method); },
          Failure::failed, true, true};
}

Wrong badReply(const char* method, const QVariant& argument) {
  return {std::string("bad reply to ") + method, [=](auto& p) { p.replies[QLatin1String(method)] = {argument}; },
          Failure::failed};
}

Wrong response(const char* what, const char* method, const QVariantList& arguments, Failure failure = Failure::failed) {
  return {what, [=](auto& p) { p.responses[QLatin1String(method)] = arguments; }, failure};
}

Wrong streamsAre(const char* what, const QVariant& streams) {
  return response(what, "Start", {0U, QVariantMap{{QStringLiteral("streams"), streams}}});
}

Wrong castIs(const char* what, const QVariantMap& properties, Failure failure) {
  return {what, [=](auto& p) { p.cast = properties; }, failure, false};
}

std::vector<Wrong> wrongs() {
  const auto version = QStringLiteral("version");
  const auto types = QStringLiteral("AvailableSourceTypes");
  const auto modes = QStringLiteral("AvailableCursorModes");
  const auto handle = QStringLiteral("session_handle");
  return {
      response("refused", "Start", {1U, QVariantMap()}, Failure::refused),
      response("ended otherwise", "Start", {2U, QVariantMap()}),
      response("unknown response", "Start", {77U, QVariantMap()}),
      castIs("no interface", {}, Failure::noPortal),
      castIs("windows only", {{version, 4U}, {types, 2U}, {modes, 7U}}, Failure::noPortal),
      castIs("types are a text", {{version, 4U}, {types, QStringLiteral("7")}, {modes, 7U}}, Failure::noPortal),
      castIs("no metadata", {{version, 4U}, {types, 3U}, {modes, 3U}}, Failure::noPointer),
      castIs("no cursor modes", {{version, 1U}, {types, 3U}}, Failure::noPointer),
      badReply("CreateSession", QStringLiteral("no path")),
      badReply("Start", 5U),
      badReply("OpenPipeWireRemote", 5U),
      response("no results", "CreateSession", {0U}),
      response("results are a text", "SelectSources", {0U, QStringLiteral("granted")}),
      response("no session", "CreateSession", {0U, QVariantMap()}),
      response("session is no path", "CreateSession", {0U, QVariantMap{{handle, QStringLiteral("/a//b c")}}}),
      response("sources refused", "SelectSources", {2U, QVariantMap()}),
      response("no streams", "Start", {0U, QVariantMap()}),
      streamsAre("streams are a text", QStringLiteral("1")),
      streamsAre("streams are numbers", QVariant::fromValue(QList<int>{1, 2})),
      streamsAre("empty", QVariant::fromValue(QList<PortalStream>())),
      streamsAre("a thousand", QVariant::fromValue(QList<PortalStream>(1000))),
      silent("GetAll"),
      silent("CreateSession"),
      silent("SelectSources"),
      silent("Start"),
      silent("OpenPipeWireRemote"),
      undecided("CreateSession"),
      undecided("SelectSources"),
  };
}

TEST_F(ScreenCastPortalTest, SaysWhatIsWrongAndLeavesNothingOpen) {
  for (const auto& row : wrongs()) {
    SCOPED_TRACE(row.what);
    restartPortal();
    row.play(*portal);
    cast.emplace(connection.bus, row.isSilent ? impatient : patient);
    open();
    ASSERT_TRUE(gotResult());
    ASSERT_TRUE(std::holds_alternative<Failure>(*result));
    EXPECT_EQ(std::get<Failure>(*result), row.failure);
    EXPECT_TRUE(row.mayBeAsked || !portal->calls.contains(QStringLiteral("CreateSession")));
    EXPECT_TRUE(waitUntil([&] { return portal->open.isEmpty(); })) << portal->open.join(' ').toStdString();
  }
}

TEST_F(ScreenCastPortalTest, SaysThatThereIsNoPortalOrNoBus) {
  portal.reset();
  open();
  ASSERT_TRUE(gotResult());
  EXPECT_EQ(std::get<Failure>(*result), Failure::noPortal);

  cast.emplace(QDBusConnection(QStringLiteral("none")));
  open();
  EXPECT_FALSE(result) << "answered from within the call";
  ASSERT_TRUE(gotResult());
  EXPECT_EQ(std::get<Failure>(*result), Failure::noPortal);
}

TEST_F(ScreenCastPortalTest, TakesAPlaceOrASizeThatCanNotBeAsNotGiven) {
  const auto position = QStringLiteral("position");
  const auto size = QStringLiteral("size");
  const PortalStream lies[] = {
      {1, {}},
      {1, {{position, 5}, {size, QStringLiteral("1280x1024")}}},
      {1, {{position, QPointF(1, 2)}, {size, QSizeF(1, 2)}}},
      {1, {{position, QPoint(1 << 30, 0)}, {size, QSize(0, 1024)}}},
      {1, {{position, QPoint(0, -(1 << 30))}, {size, QSize(1280, -1)}}},
      {1, {{size, QSize(1 << 30, 1 << 30)}}},
  };
  for (const auto& lie : lies) {
    portal->streams = {lie};
    open();
    ASSERT_TRUE(gotCast());
    EXPECT_FALSE(streams()[0].position);
    EXPECT_FALSE(streams()[0].size);
  }
}

TEST_F(ScreenCastPortalTest, ReopensWithTheLastTokenWherePortalsHaveTokens) {
  const struct {
    QString given;
    std::uint32_t version;
    QVariant sent;
  } rows[] = {
      {QStringLiteral("one"), 4, {}},        {QStringLiteral("two"), 4, QStringLiteral("one")},
      {QString(), 5, QStringLiteral("two")}, {QStringLiteral("three"), 5, {}},
      {QStringLiteral("four"), 3, {}},
  };
  for (const auto& row : rows) {
    portal->token = row.given;
    portal->cast[QStringLiteral("version")] = row.version;
    open();
    ASSERT_TRUE(gotCast());
    const auto& options = portal->options[QStringLiteral("SelectSources")];
    EXPECT_EQ(options.value(QStringLiteral("restore_token")), row.sent);
    EXPECT_EQ(options.contains(QStringLiteral("persist_mode")), row.version >= 4);
  }
  cast->forgetToken();
  portal->cast[QStringLiteral("version")] = 4U;
  open();
  ASSERT_TRUE(gotCast());
  EXPECT_FALSE(portal->options[QStringLiteral("SelectSources")].contains(QStringLiteral("restore_token")));
}

// Portals before version 0.9 choose the names of requests and sessions. Here the Response is sent repeatedly.
TEST_F(ScreenCastPortalTest, FollowsAPortalThatTakesNoTokensInPaths) {
  const auto session = QStringLiteral("/org/freedesktop/portal/desktop/session/s1");
  portal->responses[QStringLiteral("CreateSession")] = {0U, QVariantMap{{QStringLiteral("session_handle"), session}}};
  const QString methods[] = {QStringLiteral("CreateSession"), QStringLiteral("SelectSources"), QStringLiteral("Start")};
  for (const auto& method : methods) {
    const QDBusObjectPath path(QStringLiteral("/org/freedesktop/portal/desktop/request/") + method);
    portal->replies[method] = {QVariant::fromValue(path)};
    portal->undecided << method;
  }
  open();
  for (const auto& method : methods) {
    ASSERT_TRUE(waitForCall(method));
    const auto before = portal->calls.size();
    ASSERT_TRUE(waitUntil([&] {
      portal->respond(method);
      return portal->calls.size() > before;
    }));
  }
  ASSERT_TRUE(gotCast());

  bool isClosed = false;
  cast->closed = [&](Ending) { isClosed = true; };
  portal->session = session;
  portal->closeSession();
  EXPECT_TRUE(waitUntil([&] { return isClosed; }));
}

TEST_F(ScreenCastPortalTest, LetsTheUserTakeAnyTime) {
  portal->undecided << QStringLiteral("Start");
  cast.emplace(connection.bus, 2 * impatient);
  open();
  ASSERT_TRUE(waitForCall(QStringLiteral("Start")));

  portal->mute << QStringLiteral("GetAll");
  ScreenCastPortal clock(connection.bus, 3 * impatient);
  bool isLate = false;
  clock.open([&](const auto&) { isLate = true; });
  ASSERT_TRUE(waitUntil([&] { return isLate; }));
  EXPECT_FALSE(result);
  portal->respond(QStringLiteral("Start"));
  EXPECT_TRUE(gotCast());
}

// The calls that wait for an answer at each step.
struct Step {
  std::string what;
  std::function<void(FakePortal&)> play;
  QString method;
};

std::vector<Step> steps() {
  std::vector<Step> result;
  for (const char* const name : {"GetAll", "CreateSession", "SelectSources", "Start", "OpenPipeWireRemote"}) {
    const auto method = QString::fromLatin1(name);
    result.push_back({std::string("reply to ") + name, [=](auto& portal) { portal.mute << method; }, method});
    if (method == QLatin1String("GetAll") || method == QLatin1String("OpenPipeWireRemote")) continue;
    result.push_back({std::string("response to ") + name, [=](auto& portal) { portal.undecided << method; }, method});
  }
  return result;
}

TEST_F(ScreenCastPortalTest, FailsIfThePortalOrTheSessionEndsWhileAsking) {
  for (const auto& step : steps()) {
    SCOPED_TRACE(step.what);
    restartPortal();
    step.play(*portal);
    open();
    ASSERT_TRUE(waitForCall(step.method));
    portal.reset();
    ASSERT_TRUE(gotResult());
    EXPECT_EQ(std::get<Failure>(*result), Failure::failed);
  }

  restartPortal();
  portal->undecided << QStringLiteral("Start");
  open();
  ASSERT_TRUE(waitForCall(QStringLiteral("Start")));
  portal->closeSession();
  ASSERT_TRUE(gotResult());
  EXPECT_EQ(std::get<Failure>(*result), Failure::failed);
}

// The portal's answers to a cancelled request come late, before the answers to the next request.
TEST_F(ScreenCastPortalTest, TakesTheQuestionBackAtAnyTime) {
  const struct {
    std::string how;
    std::function<void()> takeBack;
  } ways[] = {
      {"closed", [this] { cast->close(); }},
      {"asked again", [] {}},
      {"destroyed", [this] { cast.emplace(connection.bus, patient); }},
  };
  for (const auto& way : ways) {
    for (const auto& step : steps()) {
      SCOPED_TRACE(way.how + ", " + step.what);
      restartPortal();
      step.play(*portal);
      int answers = 0;
      cast->open([&](const auto&) { ++answers; });
      ASSERT_TRUE(waitForCall(step.method));
      way.takeBack();
      portal->mute.clear();
      if (!portal->undecided.isEmpty()) portal->respond(portal->undecided.takeFirst());
      open();
      ASSERT_TRUE(gotCast());
      EXPECT_EQ(answers, 0);
      EXPECT_EQ(portal->open.size(), 1) << portal->open.join(' ').toStdString();  // the new session
    }
  }
}

TEST_F(ScreenCastPortalTest, MayEndInItsCallsBack) {
  int calls = 0;
  const auto end = [&](const auto&) {
    cast.reset();
    ++calls;
  };
  const std::function<void()> failing[] = {
      [&] {
        portal->responses[QStringLiteral("Start")] = {1U, QVariantMap()};
      },
      [&] { portal->cast.clear(); },
      [] {},
  };
  for (const auto& prepare : failing) {
    restartPortal();
    prepare();
    cast.emplace(connection.bus, patient);
    cast->open(end);
    ASSERT_TRUE(waitUntil([&] { return !cast; }));
  }

  const std::pair<std::function<void()>, Ending> endings[] = {{[this] { portal->closeSession(); }, Ending::session},
                                                              {[this] { portal.reset(); }, Ending::portal},
                                                              {[this] { bus.kill(); }, Ending::portal}};
  for (const auto& [play, ending] : endings) {
    restartPortal();
    cast.emplace(connection.bus, patient);
    cast->closed = [&, wanted = ending](Ending given) {
      EXPECT_EQ(given, wanted);
      end(given);
    };
    open();
    ASSERT_TRUE(gotCast());
    play();
    ASSERT_TRUE(waitUntil([&] { return !cast; }));
  }
  EXPECT_EQ(calls, 6);
}

}  // namespace
}  // namespace tavrelkin::test
