#pragma once

#include <QApplication>
#include <QTemporaryDir>
#include <QtTest>

/**
 * The main function of a test of the program of its own: sockets, settings and the user's folders
 * lie in a folder of the test's own, so that tests run beside each other and beside the program.
 */
#define TONQUILL_SOLO_TEST_MAIN(TestClass)                                                         \
    int main(int argc, char *argv[])                                                               \
    {                                                                                              \
        QTemporaryDir folder(QStringLiteral("/tmp/tonquill-test-XXXXXX"));                         \
        for (const char *name : {"TMPDIR", "HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})            \
            qputenv(name, folder.path().toLocal8Bit());                                            \
        QApplication application(argc, argv);                                                      \
        QCoreApplication::setOrganizationName(QStringLiteral("Tonquill"));                         \
        QCoreApplication::setApplicationName(QStringLiteral("tonquill-solo"));                     \
        TestClass test;                                                                            \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
