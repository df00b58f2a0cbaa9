// Prompts and picks in the desktop's window: nested, cancelled, and requested by panels.
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include "platform/arx/EdDisplay.h"
#include "platform/arx/EdPrompt.h"
#include "tests/host/desktop/FrameFixture.h"

namespace Tessaly {

namespace {

class FrameQuestionsTest : public FrameTest {
protected:
    CString Ask(const wchar_t* prompt) {
        CString answer;
        m_pPort->GetString(true, prompt, answer);
        return answer;
    }
    static int Pick() {
        AcDbObjectId id;
        AcGePoint3d place;
        return acedEntSel(L"Point: ", id, place);
    }
    QString Prompt() const { return m_pFrame->Pane().findChild<QLabel*>()->text(); }
    int Drawings() const { return acDocManagerPtr()->documentCount(); }
};

} // namespace

TEST_F(FrameQuestionsTest, TheInnerPromptIsAnsweredFirstAndTheOuterOneShownAgain) {
    CString inner;
    QString between;
    Later([&] {
        Later([&] { Type("in"); });
        inner = Ask(L"Inner:");
        between = Prompt();
        Later([&] { Type("out"); });
    });
    EXPECT_EQ(Ask(L"Outer:").Str(), L"out");
    EXPECT_EQ(inner.Str(), L"in");
    EXPECT_EQ(between, "Outer:");
    EXPECT_EQ(Prompt(), ">");
}

TEST_F(FrameQuestionsTest, WhatAPanelAsksEndsBeforeACommandRuns) {
    const int before = Drawings();
    int meanwhile = 0;
    Later([&] {
        acedRunner().Give({L"NEW", OrderOrigin::Menu});
        meanwhile = Drawings();
    });
    EXPECT_EQ(Ask(L"Panel:").Str(), L"");
    EXPECT_EQ(meanwhile, before) << "no command runs during the prompt";
    QApplication::processEvents();
    EXPECT_EQ(Drawings(), before + 1);
    Later([&] { acedRunner().Give({L"NEW", OrderOrigin::Menu}); });
    EXPECT_EQ(Pick(), RTCAN);
    QApplication::processEvents();
    EXPECT_EQ(Drawings(), before + 2);
}

TEST_F(FrameQuestionsTest, EnterWhilePointingDoesNotRepeatTheLastCommand) {
    Type("NEW");
    const int before = Drawings();
    Later([&] {
        QTest::keyClick(m_pFrame->CurrentView(), Qt::Key_Return);
        acedPostCommand(L"\x1B");
    });
    EXPECT_EQ(Pick(), RTCAN);
    EXPECT_EQ(Drawings(), before);
    EXPECT_FALSE(m_pFrame->CurrentView()->IsPicking());
}

TEST_F(FrameQuestionsTest, AClickAnswersTheInnerPickAlone) {
    int inner = 0;
    bool goesOn = false;
    const auto click = [&] { QTest::mouseClick(m_pFrame->CurrentView(), Qt::LeftButton); };
    Later([&] {
        Later(click);
        inner = Pick();
        Later([&] {
            goesOn = m_pFrame->CurrentView()->IsPicking();
            m_pPort->Escape();
        });
    });
    EXPECT_EQ(Pick(), RTCAN);
    EXPECT_EQ(inner, RTERROR) << "there is nothing to pick";
    EXPECT_TRUE(goesOn);
}

TEST_F(FrameQuestionsTest, ClosingTheWindowEndsWhatIsAsked) {
    Later([&] { m_pFrame->close(); });
    EXPECT_EQ(Pick(), RTCAN);
    QApplication::processEvents();
    EXPECT_TRUE(HasQuit());
}

TEST_F(FrameQuestionsTest, ChoicesAreButtonsAndEscapeIsNoAnswer) {
    const ChoicePrompt prompt{L"Match", {{L"All", L"Alle"}, {L"Any", L"Eine"}}, 0};
    const auto answerWith = [&](auto press) {
        Later([press] {
            auto* const pBox = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(pBox);
            EXPECT_EQ(pBox->text(), "Match");
            press(*pBox);
        });
        return acedAskChoice(prompt);
    };
    EXPECT_EQ(answerWith([](QMessageBox& box) {
                  for (QAbstractButton* const pButton : box.buttons()) {
                      if (pButton->text() == "Eine") {
                          pButton->click();
                          return;
                      }
                  }
              }),
              1U);
    EXPECT_EQ(answerWith([](QMessageBox& box) { box.defaultButton()->click(); }), 0U);
    EXPECT_FALSE(answerWith([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }));
}

TEST_F(FrameQuestionsTest, NobodyAnswersWithoutADesktop) {
    AfxSetDesktopMode(false);
    EXPECT_EQ(Ask(L"First:").Str(), L"");
    EXPECT_EQ(Ask(L"Again:").Str(), L"_quit") << "for commands that keep prompting";
    EXPECT_EQ(Pick(), RTCAN);
    acedAlert(L"A text");
    EXPECT_TRUE(Said("A text"));
}

TEST_F(FrameQuestionsTest, HistoryOfTheRunBeforeIsReachedByTheArrowKeys) {
    Layout layout;
    layout.history = {L"OLDER", L"LAST"};
    m_pFrame->ApplyLayout(layout);
    QTest::keyClick(m_pInput, Qt::Key_Up);
    EXPECT_EQ(m_pInput->text(), "LAST");
}

} // namespace Tessaly
