#include "viewer/text/errortext.h"
#include "viewer/text/visibletext.h"

#include <QTest>

using namespace Viewer::Text;

class CVisibleTextTest : public QObject
{
    Q_OBJECT

private slots:
    void showsEveryTextOnOneLine_data();
    void showsEveryTextOnOneLine();
};

void CVisibleTextTest::showsEveryTextOnOneLine_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("clause");
    const auto add = [](const char *name, const QString &text, const QString &line,
                        const QString &clause) { QTest::newRow(name) << text << line << clause; };
    const QString ordinary = QString::fromUtf8("Größe 5 µm, 한국어、\xF0\x9F\x93\xB7 \"<b>&\"");
    add("ordinary", ordinary, ordinary, ordinary);
    add("final stops", "One. Two...", "One. Two...", "One. Two");
    add("line breaks", " a\r\nb\t.\n", " a??b?.?", "a b ");
    add("escape sequence", "1\x1b[31m", "1?[31m", "1?[31m");
    add("NUL", QString("1%1.2").arg(QChar(0)), "1?.2", "1?.2");
    add("direction", QString::fromUtf8("a\u202Eb\u2066c\u200Fd"), "a?b?c?d", "a?b?c?d");
    add("separators", QString::fromUtf8("a\u2028b\u2029c"), "a?b?c", "a b c");
    add("half a pair", "a" + QString(QChar(0xD800)) + "b", "a?b", "a?b");
    add("beyond 16 bits", QString::fromUtf8("a\U000E0041b"), "a?b", "a?b");
}

void CVisibleTextTest::showsEveryTextOnOneLine()
{
    QFETCH(QString, text);
    QFETCH(QString, line);
    QFETCH(QString, clause);
    QCOMPARE(toSingleLine(text), line);
    QCOMPARE(shorten(text), line);
    QCOMPARE(shorten(QString(80, 'x') + text), QString(80, 'x') + "...");
    QCOMPARE(hasUnprintable(text), line != text);
    QCOMPARE(CErrorText(text).toClause().getEnglish(), clause);
    QVERIFY(!hasUnprintable(clause));
}

QTEST_GUILESS_MAIN(CVisibleTextTest)
#include "tst_visibletext.moc"
