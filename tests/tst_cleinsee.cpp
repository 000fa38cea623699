#include "support.h"

#include "calculators/cleinsee.h"
#include "core/controls.h"
#include "core/platform.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHelpEvent>

using namespace Qt::StringLiterals;
using namespace vorkan;
using namespace vorkan::test;

namespace {

TextField& number()
{
    return cleinsee().control<TextField>(u"TextField1");
}

BevelButton& copier()
{
    return cleinsee().control<BevelButton>(u"BevelButton2");
}

// Types into the number field: "\r" is Return, "\n" the keypad's Enter, "\b"
// Backspace, ">" the right arrow key, "\t" Tab, "^" Shift pressed and released alone,
// a digit its own key; anything else fails the test.
void press(const QString& keys)
{
    TextField& field = number();
    field.setFocus();
    for (const QChar c : keys) {
        if (c == u'\r')
            QTest::keyClick(&field, Qt::Key_Return);
        else if (c == u'\n')
            QTest::keyClick(&field, Qt::Key_Enter, Qt::KeypadModifier);
        else if (c == u'\b')
            QTest::keyClick(&field, Qt::Key_Backspace);
        else if (c == u'>')
            QTest::keyClick(&field, Qt::Key_Right);
        else if (c == u'\t')
            QTest::keyClick(&field, Qt::Key_Tab);
        else if (c == u'^')
            QTest::keyClick(&field, Qt::Key_Shift);
        else if (c.isDigit())
            QTest::keyClick(&field, c.toLatin1());
        else
            QFAIL(qPrintable(u"no key for '%1'"_s.arg(c)));
    }
}

} // namespace

class TestCleinsee : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { closeAllWindows(); }

    // The key is computed on Return and on the key press after the thirteenth digit,
    // which still sees the text from before it; the copy button follows the field one
    // key behind.
    void keys_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("expected"); // the number, the key, the copy button
        QTest::newRow("13 digits and Return") << u"1234567890123\r"_s << u"1234567890123 11 on"_s;
        QTest::newRow("a 14th digit is refused but computes")
            << u"25001750010019"_s << u"2500175001001 66 on"_s;
        QTest::newRow("no leading zero") << u"1000000000040>"_s << u"1000000000040 7 on"_s;
        QTest::newRow("nothing and Return") << u"\r"_s << u" 97 off"_s;
        QTest::newRow("keypad Enter, fewer digits") << u"123\n"_s << u"123 71 on"_s;
        QTest::newRow("beyond 2^32, read exactly")
            << u"4294967296001\r"_s << u"4294967296001 16 on"_s;
        QTest::newRow("the 13th digit alone does not compute")
            << u"1234567890123"_s << u"1234567890123  on"_s;
        QTest::newRow("Backspace on 13 digits computes before deleting")
            << u"1234567890123\b"_s << u"123456789012 11 on"_s;
        QTest::newRow("Tab after the 13th computes")
            << u"1234567890123\t"_s << u"1234567890123 11 on"_s;
        QTest::newRow("Shift alone is no key") << u"1234567890123^"_s << u"1234567890123  on"_s;
        QTest::newRow("first digit") << u"1"_s << u"1  off"_s;
        QTest::newRow("last digit deleted") << u"12\b\b"_s << u"  on"_s;
        QTest::newRow("next key on the empty field") << u"12\b\b>"_s << u"  off"_s;
        QTest::newRow("Shift alone does not count") << u"12\b\b^"_s << u"  on"_s;
    }
    void keys()
    {
        QFETCH(QString, keys);
        press(keys);
        QTEST(QString(shown(cleinsee(), u"TextField1 TextField2"_s) +
                      (copier().isEnabled() ? u" on"_s : u" off"_s)),
              "expected");
    }

    // RAZ clears both fields and leaves the focus where the user types; the copy button
    // stays enabled until the next key, but copies nothing from an empty field.
    void resetKeepsTheFocusAndTheCopyButton()
    {
        press(u"1234567890123\r"_s);
        QTest::mouseClick(&cleinsee().control<BevelButton>(u"BevelButton1"), Qt::LeftButton);
        QCOMPARE(cleinsee().focusWidget(), &number());
        QCOMPARE(shown(cleinsee(), u"TextField1 TextField2"_s), u" "_s);
        QVERIFY(copier().isEnabled());
        QGuiApplication::clipboard()->setText(u"before"_s);
        QTest::mouseClick(&copier(), Qt::LeftButton);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"before"_s);
        press(u"7"_s);
        QVERIFY(!copier().isEnabled());
    }

    void copies_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("expected");
        QTest::newRow("number and key") << u"1234567890123\r"_s << u"1234567890123 11"_s;
        QTest::newRow("nothing computed yet") << u"123"_s << u"123 "_s;
        QTest::newRow("a key left from another number")
            << u"1234567890123\r\b\b"_s << u"12345678901 11"_s;
    }
    void copies()
    {
        QFETCH(QString, keys);
        press(keys);
        QTest::mouseClick(&copier(), Qt::LeftButton);
        QTEST(QGuiApplication::clipboard()->text(), "expected");
    }

    // The digits of a number written in groups, up to 13; anything else is refused.
    void pastes_data()
    {
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<bool>("refused");
        QTest::newRow("in groups") << u"1 85 05 78 006 084"_s << u"1850578006084"_s << false;
        QTest::newRow("with dots and its key")
            << u"1.85.05.78.006.084.91"_s << u"1850578006084"_s << false;
        QTest::newRow("not a number") << u"12,5"_s << u""_s << true;
    }
    void pastes()
    {
        QFETCH(QString, pasted);
        QGuiApplication::clipboard()->setText(pasted);
        number().setFocus();
        QTest::keyClick(&number(), Qt::Key_V, Qt::ControlModifier);
        QTEST(number().text(), "expected");
        QTEST(number().balloon() != nullptr, "refused");
    }

    // The break after imc's first line is a carriage return alone.
    void tipsStayUntilThePointerLeaves_data()
    {
        QTest::addColumn<Win>("window");
        QTest::addColumn<QString>("control");
        QTest::addColumn<int>("lines");
        QTest::addColumn<QString>("firstLine");
        QTest::newRow("imc ?") << Win::imc << u"imcaide"_s << 3
                               << u"Utiliser la molette de la souris"_s;
        QTest::newRow("?") << Win::cleinsee << u"cleaide"_s << 2
                           << u"Entrer 13 chiffres pour calculer"_s;
        QTest::newRow("Numéro") << Win::cleinsee << u"StaticText2"_s << 7
                                << u"A BB CC DD EEE FFF"_s;
    }
    // A tip opens beside the pointer and stays through a hover text and a key press
    // until the pointer leaves; leaving with no tip up does nothing.
    void tipsStayUntilThePointerLeaves()
    {
        QFETCH(Win, window);
        QFETCH(QString, control);
        auto& clicked = open(window).control<QWidget>(control);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&clicked, &leave);
        QVERIFY(!Tooltip::shown());
        QCursor::setPos(clicked.mapToGlobal(QPoint(5, 5)));
        QTest::mouseClick(&clicked, Qt::LeftButton, {}, QPoint(5, 5));
        QHelpEvent hover(QEvent::ToolTip, QPoint(5, 5), clicked.mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(&clicked, &hover);
        QTest::keyClick(clicked.window(), Qt::Key_4);
        QVERIFY(Tooltip::shown());
        QCOMPARE(Tooltip::shown()->pos(), QCursor::pos() + QPoint(10, 10));
        const QStringList lines = Tooltip::shown()->text().split(u'\n');
        QTEST(int(lines.size()), "lines");
        QTEST(lines.first(), "firstLine");
        QVERIFY(!lines.contains(QString()));
        QCoreApplication::sendEvent(&clicked, &leave);
        QVERIFY(!Tooltip::shown());
    }
};

VORKAN_TEST_MAIN(TestCleinsee)
#include "tst_cleinsee.moc"
