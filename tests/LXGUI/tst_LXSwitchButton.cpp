#include "platform/LXGUI/LXSwitchButton.h"
#include "platform/LXGUI/Theme.h"

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QCursor>
#include <QProxyStyle>
#include <QtTest>

#include <memory>

using LXGUI::LXSwitchButton;

namespace {

/// A desktop that does, or does not, want things to move.
class MotionStyle : public QProxyStyle
{
public:
    explicit MotionStyle(int iDuration)
        : m_iDuration(iDuration)
    {
    }
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override
    {
        return hint == SH_Widget_Animation_Duration
                   ? m_iDuration
                   : QProxyStyle::styleHint(hint, option, widget, returnData);
    }

private:
    int m_iDuration;
};

QImage PictureOf(QWidget& widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_ARGB32);
}

// What a switch looks like that never moved: out of sight until its picture is taken.
QImage StillPicture(bool bOn, bool bEnabled = true)
{
    LXSwitchButton still;
    still.resize(still.sizeHint());
    still.setEnabled(bEnabled);
    still.setToggle(bOn);
    return PictureOf(still);
}

bool HasColour(const QImage& image, const QColor& colour)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == colour) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

class tst_LXSwitchButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_button = std::make_unique<LXSwitchButton>();
        m_button->resize(m_button->sizeHint());
    }
    void cleanup() { m_button.reset(); }

    void aNewSwitchIsOffAndThirtySixByEighteen()
    {
        QVERIFY(!m_button->isToggled());
        QCOMPARE(m_button->sizeHint(), QSize(36, 18));
        QCOMPARE(m_button->minimumSizeHint(), QSize(36, 18));
    }

    void showingAStateStaysSilent()
    {
        QSignalSpy toggled(m_button.get(), &QAbstractButton::toggled);
        m_button->setToggle(true);
        QVERIFY(m_button->isToggled());
        m_button->setToggle(true);
        m_button->setToggle(false);
        QVERIFY(!m_button->isToggled());
        QCOMPARE(toggled.size(), 0);
    }

    void showingAStateDoesNotUnblockSignalsThatTheUserBlocked()
    {
        m_button->blockSignals(true);
        m_button->setToggle(true);
        QVERIFY(m_button->signalsBlocked());
    }

    void aClickEmitsOnce()
    {
        ShowAndActivate();
        QSignalSpy toggled(m_button.get(), &QAbstractButton::toggled);
        QTest::mouseClick(m_button.get(), Qt::LeftButton);
        QCOMPARE(toggled.size(), 1);
        QCOMPARE(toggled.at(0).at(0).toBool(), true);
        QTest::mouseClick(m_button.get(), Qt::LeftButton);
        QCOMPARE(toggled.size(), 2);
        QCOMPARE(toggled.at(1).at(0).toBool(), false);
    }

    void otherMouseButtonsDoNothing()
    {
        ShowAndActivate();
        QSignalSpy toggled(m_button.get(), &QAbstractButton::toggled);
        QTest::mouseClick(m_button.get(), Qt::RightButton);
        QTest::mouseClick(m_button.get(), Qt::MiddleButton);
        QCOMPARE(toggled.size(), 0);
    }

    void aPressThatIsReleasedOutsideDoesNothing()
    {
        ShowAndActivate();
        QSignalSpy toggled(m_button.get(), &QAbstractButton::toggled);
        QTest::mousePress(m_button.get(), Qt::LeftButton);
        QTest::mouseRelease(m_button.get(), Qt::LeftButton, Qt::NoModifier, QPoint(200, 200));
        QCOMPARE(toggled.size(), 0);
    }

    void keysToggle_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Space") << int(Qt::Key_Space);
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Enter") << int(Qt::Key_Enter);
    }
    void keysToggle()
    {
        QFETCH(int, key);
        ShowAndActivate();
        QSignalSpy toggled(m_button.get(), &QAbstractButton::toggled);
        QTest::keyClick(m_button.get(), static_cast<Qt::Key>(key));
        QCOMPARE(toggled.size(), 1);
        QVERIFY(m_button->isToggled());
    }

    void aHeldReturnTogglesOnce()
    {
        ShowAndActivate();
        QSignalSpy toggled(m_button.get(), &QAbstractButton::toggled);
        QTest::keyPress(m_button.get(), Qt::Key_Return);
        for (int i = 0; i < 5; ++i) {
            QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
            QCoreApplication::sendEvent(m_button.get(), &repeated);
        }
        QTest::keyRelease(m_button.get(), Qt::Key_Return);
        QCOMPARE(toggled.size(), 1);
    }

    void aDisabledSwitchIgnoresEverything()
    {
        ShowAndActivate();
        m_button->setEnabled(false);
        QSignalSpy toggled(m_button.get(), &QAbstractButton::toggled);
        QTest::mouseClick(m_button.get(), Qt::LeftButton);
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
            QCoreApplication::sendEvent(m_button.get(), &press);
            QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
            QCoreApplication::sendEvent(m_button.get(), &release);
        }
        QCOMPARE(toggled.size(), 0);
        QVERIFY(!m_button->isToggled());
        m_button->setToggle(true);
        QVERIFY(m_button->isToggled());
    }

    void onOffAndDisabledLookDifferent()
    {
        const QImage on = StillPicture(true);
        const QImage off = StillPicture(false);
        const QColor accent = LXGUI::Theme::Current().Colour(QStringLiteral("accent"));
        QVERIFY(on != off);
        QVERIFY(HasColour(on, accent));
        QVERIFY(!HasColour(off, accent));
        QVERIFY(StillPicture(true, false) != on);
        QVERIFY(StillPicture(false, false) != off);
        QVERIFY(StillPicture(true, false) != StillPicture(false, false));
        QVERIFY(!HasColour(StillPicture(true, false), accent));
    }

    void theSwitchTakesTheThemesColours()
    {
        const QImage dark = StillPicture(true);
        QVERIFY(LXGUI::Theme::Load(QStringLiteral("light")));
        const QImage light = StillPicture(true);
        const QColor accent = LXGUI::Theme::Current().Colour(QStringLiteral("accent"));
        QVERIFY(LXGUI::Theme::Load(QStringLiteral("dark")));
        QVERIFY(dark != light);
        QVERIFY(HasColour(light, accent));
    }

    void focusDrawsARing()
    {
        ShowAndActivate();
        m_button->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(m_button->hasFocus());
        const QImage focused = PictureOf(*m_button);
        const QColor ring = LXGUI::Theme::Current().Colour(QStringLiteral("focus"));
        // Two pixels thick where the ring runs straight.
        QCOMPARE(focused.pixelColor(18, 0), ring);
        QCOMPARE(focused.pixelColor(18, 1), ring);
        QVERIFY(focused.pixelColor(18, 2) != ring);
        QVERIFY(!HasColour(StillPicture(false), ring));
    }

    void theKnobSlides()
    {
        WantMotion(200);
        ShowAndActivate();
        const QImage off = StillPicture(false);
        m_button->click();
        QVERIFY(m_button->isToggled());
        QVERIFY(Unfocused() != StillPicture(true));
        QTRY_COMPARE(Unfocused(), StillPicture(true));
        QVERIFY(off != StillPicture(true));
    }

    void nothingSlidesWhereTheDesktopWantsStillness()
    {
        WantMotion(0);
        ShowAndActivate();
        m_button->click();
        QCOMPARE(Unfocused(), StillPicture(true));
    }

    void showingAStateIsInstantAlsoWhileTheKnobSlides()
    {
        WantMotion(200);
        ShowAndActivate();
        m_button->setToggle(true);
        QCOMPARE(Unfocused(), StillPicture(true));
        m_button->click();
        m_button->setToggle(true);
        QCOMPARE(Unfocused(), StillPicture(true));
    }

    void aHiddenSwitchDoesNotSlide()
    {
        WantMotion(200);
        m_button->click();
        QCOMPARE(PictureOf(*m_button), StillPicture(true));
    }

    void aSlotThatRefusesLeavesTheSwitchOff()
    {
        ShowAndActivate();
        QSignalSpy toggled(m_button.get(), &QAbstractButton::toggled);
        connect(m_button.get(), &QAbstractButton::toggled, m_button.get(),
                [this] { m_button->setToggle(false); });
        m_button->click();
        QCOMPARE(toggled.size(), 1);
        QVERIFY(!m_button->isToggled());
        QCOMPARE(Unfocused(), StillPicture(false));
    }

    void aSlotMayDeleteTheSwitch()
    {
        ShowAndActivate();
        auto* const pDoomed = new LXSwitchButton;
        const QPointer<LXSwitchButton> guard(pDoomed);
        connect(pDoomed, &QAbstractButton::toggled, this, [pDoomed] { delete pDoomed; });
        pDoomed->click();
        QVERIFY(guard.isNull());
    }

    void assistiveTechnologySeesACheckBox()
    {
        m_button->setAccessibleName(QStringLiteral("Alarm sound"));
        QAccessibleInterface* const pInterface = QAccessible::queryAccessibleInterface(m_button.get());
        QVERIFY(pInterface);
        QCOMPARE(pInterface->role(), QAccessible::CheckBox);
        QCOMPARE(pInterface->text(QAccessible::Name), QStringLiteral("Alarm sound"));
        QVERIFY(pInterface->state().checkable);
        QVERIFY(!pInterface->state().checked);
        m_button->setToggle(true);
        QVERIFY(pInterface->state().checked);
        QAccessibleActionInterface* const pActions = pInterface->actionInterface();
        QVERIFY(pActions);
        QVERIFY(pActions->actionNames().contains(QAccessibleActionInterface::toggleAction()));
        QSignalSpy toggled(m_button.get(), &QAbstractButton::toggled);
        pActions->doAction(QAccessibleActionInterface::toggleAction());
        QCOMPARE(toggled.size(), 1);
        QVERIFY(!pInterface->state().checked);
        m_button->setEnabled(false);
        pActions->doAction(QAccessibleActionInterface::toggleAction());
        QCOMPARE(toggled.size(), 1);
    }

private:
    void ShowAndActivate()
    {
        m_button->move(QCursor::pos() + QPoint(100, 100)); // not under the pointer, where it looks different
        m_button->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_button.get()));
        m_button->activateWindow();
    }
    QImage Unfocused()
    {
        m_button->clearFocus();
        return PictureOf(*m_button);
    }

    void WantMotion(int iDuration)
    {
        m_style = std::make_unique<MotionStyle>(iDuration);
        m_button->setStyle(m_style.get());
    }

    std::unique_ptr<MotionStyle> m_style;
    std::unique_ptr<LXSwitchButton> m_button;
};

QTEST_MAIN(tst_LXSwitchButton)
#include "tst_LXSwitchButton.moc"
