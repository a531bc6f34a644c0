#pragma once

#include <QApplication>
#include <QTemporaryDir>
#include <QtTest>

/**
 * The main function of a test executable. The host's socket is in the temporary folder, so each
 * test gets a folder of its own: tests run in parallel and beside a real host.
 */
#define TONQUILL_TEST_MAIN(TestClass)                                                              \
    int main(int argc, char *argv[])                                                               \
    {                                                                                              \
        QTemporaryDir temporary(QStringLiteral("/tmp/tonquill-test-XXXXXX"));                      \
        qputenv("TMPDIR", temporary.path().toLocal8Bit());                                         \
        QApplication application(argc, argv);                                                      \
        TestClass test;                                                                            \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
