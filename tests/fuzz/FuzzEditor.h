#pragma once

#include "TonquillMainWin.h"
#include "TonquillScene.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QTemporaryDir>

/** The editor that a fuzzer feeds: without a screen, without a host, for the whole run. */
class FuzzEditor
{
public:
    static TonquillMainWin &window()
    {
        static FuzzEditor editor;
        return editor.m_window;
    }

private:
    FuzzEditor()
        : m_application((prepare(), m_argc), m_argv)
    {}

    void prepare() const
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("TMPDIR", m_temporary.path().toLocal8Bit());
        QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    }

    QTemporaryDir m_temporary{QStringLiteral("/tmp/tonquill-fuzz-XXXXXX")};
    char m_name[7] = "editor";
    char *m_argv[2] = {m_name, nullptr};
    int m_argc = 1;
    QApplication m_application;
    TonquillMainWin m_window;
};
