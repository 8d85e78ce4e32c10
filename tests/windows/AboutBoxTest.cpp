#include <QLabel>
#include <QRegularExpression>

#include "forms/Utf8.h"
#include "shell/Deployment.h"
#include "shell/ui/frmAbout.h"
#include "support/WindowWorld.h"

namespace sorvane::test {
namespace {

class AboutBox : public WindowWorld {
  public:
    AboutBox() {
        about.Show();
        Person::Await(about);
        Person::Settle();
    }
    frmAbout about{session};
};

TEST_F(AboutBox, SaysWhatTheProgramIs) {
    EXPECT_EQ(about.Caption(), "About Sorvane");
    EXPECT_EQ(CaptionOf("lblTitle"), "Sorvane");
    EXPECT_EQ(CaptionOf("lblDescription"),
              "Play your lotteries, track them with Sorvane. Keep track of how much you spend, how much you "
              "win. Check your numbers quickly with the \"Check Tickets\" function. Create your own Quick "
              "Picks, and more!");
    EXPECT_EQ(CaptionOf("cmdOK"), "OK");
    EXPECT_EQ(CaptionOf("cmdSysInfo"), "&System Info...");
    EXPECT_TRUE(IsShown("picIcon"));
    EXPECT_EQ(CaptionOf("lblDisclaimer"), Deployment::Disclaimer);
    EXPECT_NE(CaptionOf("lblDisclaimer"), "");
}

TEST_F(AboutBox, ShowsTheVersionInThreeNumbers) {
    EXPECT_EQ(CaptionOf("lblVersion"), "Version " + std::string(Deployment::Version));
    EXPECT_TRUE(QRegularExpression("^Version [0-9]+\\.[0-9]+\\.[0-9]+$")
                    .match(forms::ToQt(CaptionOf("lblVersion")))
                    .hasMatch());
}

TEST_F(AboutBox, LongTextsAreWrappedAndWhole) {
    for (const char* name : {"lblDescription", "lblDisclaimer"}) {
        auto& label = person.Find<QLabel>(name);
        EXPECT_GE(label.height(), label.heightForWidth(label.width())) << name;
    }
}

TEST_F(AboutBox, SystemInfoStartsTheToolAndStaysOpen) {
    tools.programs = {{"hardinfo", "/usr/bin/hardinfo"}};
    person.AccessKey('s');
    EXPECT_EQ(tools.started, Texts{"/usr/bin/hardinfo"});
    EXPECT_TRUE(about.isVisible());
}

TEST_F(AboutBox, WithoutAToolSystemInfoGivesTheBoxAndNothingElse) {
    person.Expect("Sorvane", "System Information Is Unavailable At This Time");
    Click("cmdSysInfo");
    EXPECT_TRUE(about.isVisible());
    EXPECT_TRUE(tools.started.empty());
}

TEST_F(AboutBox, OkIsTheWayOutAndHasTheFocus) {
    EXPECT_EQ(Focus(), "cmdOK");
    person.Enter();
    EXPECT_FALSE(about.isVisible());
}

TEST_F(AboutBox, TheCloseBoxLeavesItAndEscapeDoesNot) {
    person.Key(Qt::Key_Escape);
    EXPECT_TRUE(about.isVisible());
    person.Close(about);
    EXPECT_FALSE(about.isVisible());
}

}  // namespace
}  // namespace sorvane::test
