// The About box through its widgets: the System Info button goes through
// the prompt service, OK closes the box.
#include "ScriptedPrompts.h"
#include "core/frmAbout.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>

class TestAboutBox : public QObject
{
    Q_OBJECT

private slots:
    void showsTheVersionAndTheSystem()
    {
        ScriptedPrompts prompts;
        QPixmap house(64, 64);
        house.fill(Qt::darkGreen);
        frmAbout about(prompts, house);
        about.show();
        QVERIFY(QTest::qWaitForWindowExposed(&about));
        QCOMPARE(about.windowTitle(), QString("About Vorlan"));
        QCOMPARE(about.findChild<QLabel*>("lblVersion")->text(), QString("Version 1.0.0"));

        QTest::mouseClick(about.findChild<QPushButton*>("cmdSysInfo"), Qt::LeftButton);
        QCOMPARE(prompts.shown.size(), 1);
        QCOMPARE(prompts.shown[0].title, QString("System Info"));
        QVERIFY(prompts.shown[0].text.contains(QSysInfo::kernelType()));
        QVERIFY(about.isVisible());

        QPushButton* ok = nullptr;
        for (QPushButton* b : about.findChildren<QPushButton*>())
            ok = b->text() == "OK" || b->text() == "&OK" ? b : ok;
        QVERIFY(ok);
        QTest::mouseClick(ok, Qt::LeftButton);
        QCOMPARE(about.result(), int(QDialog::Accepted));
        QVERIFY(!about.isVisible());
    }
};

QTEST_MAIN(TestAboutBox)
#include "TestAboutBox.moc"
