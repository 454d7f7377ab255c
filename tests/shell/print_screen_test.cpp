#include <gtest/gtest.h>

#include "common/failure.h"
#include "list_view/list_fixture.h"

namespace qh::testing {
namespace {

// A windowing layer whose printer is out of paper.
class FailingPrinter : public FakeWindowing {
public:
    void printWindowImage(Form&, const std::string&, int) override { throw FileFailure("out of paper"); }
};

TEST(PrintScreen, PrintsTheCopiesChosenAndNothingOnCancel) {
    ListWindow view(Mode::Homework);
    view.window.click(view.window.ui.MenuPrintScreen.key());  // the user cancels
    view.fake.dialogs.printerAnswers.push_back({true, 0, "Office Laser", 1});
    view.window.click(view.window.ui.MenuPrintScreen.key());
    view.fake.dialogs.printerAnswers.push_back({true, 0, "PDF", 3});
    view.window.click(view.window.ui.MenuPrintScreen.key());
    EXPECT_EQ(view.fake.dialogs.printerRequests, 3);
    EXPECT_EQ(view.fake.windowing.printed, (std::vector<std::string>{"frmMain on Office Laser x1", "frmMain on PDF x3"}));
    EXPECT_TRUE(view.fake.messages.shown.empty());
}

TEST(PrintScreen, AFailedPrintIsToldAndThePlannerGoesOn) {
    FakePlatform fake;
    FailingPrinter printer;
    Platform platform{fake.environment, fake.clock,     fake.locale,   fake.messages, fake.files,
                      fake.processes,   fake.dialogs,   printer,       fake.canvases, fake.calendars};
    RecordStore store;
    MainWindow window(store, platform);
    fake.dialogs.printerAnswers.push_back({true, 0, "Office Laser", 2});
    window.click(window.ui.MenuPrintScreen.key());
    ASSERT_EQ(fake.messages.shown.size(), 1u);
    EXPECT_EQ(fake.messages.shown[0].title, "Print Screen");
    EXPECT_NE(fake.messages.shown[0].text.find("out of paper"), std::string::npos);
}

}  // namespace
}  // namespace qh::testing
