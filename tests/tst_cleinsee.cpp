#include "support.h"

#include <QHelpEvent>

static TextField& number()
{
    return cleinsee().control<TextField>(u"TextField1");
}

// Types into the number field: a digit is its own key, "\r" Return, "\n" the keypad's
// Enter, "\b" Backspace, ">" the right arrow key, "\t" Tab, "^" Shift pressed and
// released alone, "*" a click on RAZ, after which typing goes on in the field; anything
// else fails the test.
static void press(const QString& keys)
{
    const QHash<QChar, Qt::Key> named{{u'\r', Qt::Key_Return},    {u'\n', Qt::Key_Enter},
                                      {u'\b', Qt::Key_Backspace}, {u'>', Qt::Key_Right},
                                      {u'\t', Qt::Key_Tab},       {u'^', Qt::Key_Shift}};
    number().setFocus();
    for (const QChar c : keys) {
        if (c == u'*') {
            QTest::mouseClick(&cleinsee().control<BevelButton>(u"BevelButton1"), Qt::LeftButton);
            QCOMPARE(cleinsee().focusWidget(), &number());
        } else if (c.isDigit() || named.contains(c)) {
            QTest::keyClick(&number(), c.isDigit() ? Qt::Key(c.unicode()) : named[c],
                            c == u'\n' ? Qt::KeypadModifier : Qt::NoModifier);
        } else {
            QFAIL(qPrintable(u"no key for '%1'"_s.arg(c)));
        }
    }
}

class TestCleinsee : public WindowTest {
    Q_OBJECT

private Q_SLOTS:
    // The key is computed on Return and on the key press after the thirteenth digit,
    // which still sees the text from before it. The copy button follows the field one
    // key behind, and copies the number, a blank and the key as shown.
    void keys_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("expected"); // number | key | copy button
        QTest::newRow("13 digits and Return") << u"1234567890123\r"_s << u"1234567890123|11|on"_s;
        QTest::newRow("14th digit refused") << u"25001750010019"_s << u"2500175001001|66|on"_s;
        QTest::newRow("no leading zero") << u"1000000000040>"_s << u"1000000000040|7|on"_s;
        QTest::newRow("nothing and Return") << u"\r"_s << u"|97|off"_s;
        QTest::newRow("keypad Enter, fewer digits") << u"123\n"_s << u"123|71|on"_s;
        QTest::newRow("beyond 2^32") << u"4294967296001\r"_s << u"4294967296001|16|on"_s;
        QTest::newRow("Backspace computes first")
            << u"1234567890123\b"_s << u"123456789012|11|on"_s;
        QTest::newRow("Tab after the 13th") << u"1234567890123\t"_s << u"1234567890123|11|on"_s;
        QTest::newRow("Shift alone is no key") << u"1234567890123^"_s << u"1234567890123||on"_s;
        QTest::newRow("last digit deleted") << u"12\b\b"_s << u"||on"_s;
        QTest::newRow("RAZ leaves the button as it was") << u"123\r*"_s << u"||on"_s;
    }
    void keys()
    {
        QFETCH(QString, keys);
        press(keys);
        auto& copier = cleinsee().control<BevelButton>(u"BevelButton2");
        const QString shownThen = shown(cleinsee(), u"TextField1"_s) + u'|' +
                                  shown(cleinsee(), u"TextField2"_s) + u'|' +
                                  (copier.isEnabled() ? u"on"_s : u"off"_s);
        QTEST(shownThen, "expected");
        QGuiApplication::clipboard()->setText(u"before"_s);
        QTest::mouseClick(&copier, Qt::LeftButton);
        const bool copies = copier.isEnabled() && !number().text().isEmpty();
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 copies ? shownThen.section(u'|', 0, 1).replace(u'|', u' ') : u"before"_s);
    }

    // The digits of a number written in groups, up to 13; anything else is refused.
    void pastes_data()
    {
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<bool>("refused");
        QTest::newRow("in groups") << u"1 85 05 78 006 084"_s << u"1850578006084"_s << false;
        QTest::newRow("dots, key") << u"1.85.05.78.006.084.91"_s << u"1850578006084"_s << false;
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
