#include "support.h"

#include "cleinsee.h"
#include "controls.h"
#include "platform.h"

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

QString key()
{
    return cleinsee().control<TextField>(u"TextField2").text();
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

    void keys_data();
    void keys();
    void copyButtonFollowsOneKeyBehind_data();
    void copyButtonFollowsOneKeyBehind();
    void resetLeavesTheCopyButtonAsItWas();
    void copies_data();
    void copies();
    void pastes_data();
    void pastes();
    void tips_data();
    void tips();
};

void TestCleinsee::keys_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("shownNumber");
    QTest::addColumn<QString>("shownKey");

    QTest::newRow("13 digits and Return, computed twice alike")
        << u"1234567890123\r"_s << u"1234567890123"_s << u"11"_s;
    QTest::newRow("a 14th digit is refused but computes")
        << u"25001750010019"_s << u"2500175001001"_s << u"66"_s;
    QTest::newRow("1000000000000") << u"1000000000000\r"_s << u"1000000000000"_s << u"47"_s;
    QTest::newRow("no leading zero") << u"1000000000040>"_s << u"1000000000040"_s << u"7"_s;
    QTest::newRow("a multiple of 97") << u"970000000000\r"_s << u"970000000000"_s << u"97"_s;
    QTest::newRow("nothing and Return") << u"\r"_s << u""_s << u"97"_s;
    QTest::newRow("keypad Enter, fewer digits") << u"123\n"_s << u"123"_s << u"71"_s;
    QTest::newRow("beyond 2^32, read exactly")
        << u"4294967296001\r"_s << u"4294967296001"_s << u"16"_s;
    QTest::newRow("the 13th digit alone does not compute")
        << u"1234567890123"_s << u"1234567890123"_s << u""_s;
    QTest::newRow("the key after the 13th does")
        << u"1234567890123>"_s << u"1234567890123"_s << u"11"_s;
    QTest::newRow("Backspace on 13 digits computes before deleting")
        << u"1234567890123\b"_s << u"123456789012"_s << u"11"_s;
    QTest::newRow("Tab after the 13th computes")
        << u"1234567890123\t"_s << u"1234567890123"_s << u"11"_s;
    QTest::newRow("Shift alone is no key") << u"1234567890123^"_s << u"1234567890123"_s << u""_s;
}

void TestCleinsee::keys()
{
    QFETCH(QString, keys);
    QFETCH(QString, shownNumber);
    QFETCH(QString, shownKey);
    press(keys);
    QCOMPARE(number().text(), shownNumber);
    QCOMPARE(key(), shownKey);
}

void TestCleinsee::copyButtonFollowsOneKeyBehind_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<bool>("enabled");

    QTest::newRow("first digit") << u"1"_s << false;
    QTest::newRow("second digit") << u"12"_s << true;
    QTest::newRow("last digit deleted") << u"12\b\b"_s << true;
    QTest::newRow("next key on the empty field") << u"12\b\b>"_s << false;
    QTest::newRow("first digit of a new number") << u"12\b\b5"_s << false;
    QTest::newRow("Shift alone does not count") << u"12\b\b^"_s << true;
}

void TestCleinsee::copyButtonFollowsOneKeyBehind()
{
    QFETCH(QString, keys);
    QFETCH(bool, enabled);
    press(keys);
    QCOMPARE(copier().isEnabled(), enabled);
}

void TestCleinsee::resetLeavesTheCopyButtonAsItWas()
{
    press(u"1234567890123\r"_s);
    QTest::mouseClick(&cleinsee().control<BevelButton>(u"BevelButton1"), Qt::LeftButton);
    // Typing goes on where it was.
    QCOMPARE(cleinsee().focusWidget(), &number());
    QCOMPARE(number().text(), QString());
    QCOMPARE(key(), QString());
    QVERIFY(copier().isEnabled());

    // With the field empty, copying leaves the clipboard alone.
    QGuiApplication::clipboard()->setText(u"before"_s);
    QTest::mouseClick(&copier(), Qt::LeftButton);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"before"_s);

    press(u"7"_s);
    QVERIFY(!copier().isEnabled());
}

void TestCleinsee::copies_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("expected");
    QTest::newRow("number and key") << u"1234567890123\r"_s << u"1234567890123 11"_s;
    QTest::newRow("nothing computed yet") << u"123"_s << u"123 "_s;
    QTest::newRow("a key left from another number")
        << u"1234567890123\r\b\b"_s << u"12345678901 11"_s;
}

void TestCleinsee::copies()
{
    QFETCH(QString, keys);
    QFETCH(QString, expected);
    press(keys);
    QTest::mouseClick(&copier(), Qt::LeftButton);
    QCOMPARE(QGuiApplication::clipboard()->text(), expected);
}

void TestCleinsee::pastes_data()
{
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("refused");
    QTest::newRow("in groups") << u"1 85 05 78 006 084"_s << u"1850578006084"_s << false;
    QTest::newRow("with dots and its key")
        << u"1.85.05.78.006.084.91"_s << u"1850578006084"_s << false;
    QTest::newRow("not a number") << u"12,5"_s << u""_s << true;
}

void TestCleinsee::pastes()
{
    QFETCH(QString, pasted);
    QFETCH(QString, shown);
    QFETCH(bool, refused);
    QGuiApplication::clipboard()->setText(pasted);
    number().setFocus();
    QTest::keyClick(&number(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(number().text(), shown);
    QCOMPARE(number().balloon() != nullptr, refused);
}

void TestCleinsee::tips_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("?") << u"cleaide"_s
                       << QStringList{u"Entrer 13 chiffres pour calculer"_s, u"ou touche Entrée"_s};
    QTest::newRow("Numéro") << u"StaticText2"_s
                            << QStringList{u"A BB CC DD EEE FFF"_s,
                                           u"A : sexe (1/2)"_s,
                                           u"BB : année"_s,
                                           u"CC : mois"_s,
                                           u"DD : département"_s,
                                           u"EEE : code commune"_s,
                                           u"FFF : rang de naissance"_s};
}

void TestCleinsee::tips()
{
    QFETCH(QString, control);
    QFETCH(QStringList, lines);
    auto& clicked = cleinsee().control<QWidget>(control);
    QTest::mouseClick(&clicked, Qt::LeftButton, {}, QPoint(5, 5));
    // The tip stays up after the click, a hover over the label and a key press.
    QHelpEvent hover(QEvent::ToolTip, QPoint(5, 5), clicked.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&clicked, &hover);
    press(u"4"_s);
    QVERIFY(Tooltip::shown());
    QCOMPARE(Tooltip::shown()->text().split(u'\n'), lines);

    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&clicked, &leave);
    QVERIFY(!Tooltip::shown());
}

VORKAN_TEST_MAIN(TestCleinsee)
#include "tst_cleinsee.moc"
