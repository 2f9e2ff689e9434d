#include <QTimer>

#include "screens/probe.h"

namespace torvane {
namespace {

using GuardTest = ProbeTest;

TEST_F(GuardTest, NothingRunsWhileTheFailureIsShown) {
    Probe form{program, "frmForm"};
    QTimer ticks;
    form.whenLoaded = [&] {
        on(form, &ticks, &QTimer::timeout, [&] { note("tick"); });
        on(form, form.first, &TextBox::textChanged, [&] { note("Change"); });
        on(form, form.button, &QPushButton::clicked, [&] { fail(Failure::TypeMismatch, "12a"); });
        program.focusWatcher().watch(form, form.second, [&] { note("LostFocus"); });
    };
    form.Show();
    form.second->setFocus();
    ticks.start(1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !log.empty(); }));
    whileFailureShows = [&] {
        log.clear();
        form.first->setText("x");
        form.first->setFocus();
        click(*form.button);
        program.guard().end(RuntimeFailure{2, "second box"});
        EXPECT_EQ(log, "");
    };
    EXPECT_EQ(endOf([&] { form.button->click(); }).refused(), "12a");
}

}  // namespace
}  // namespace torvane
