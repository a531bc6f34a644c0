#include "ArcValuesFromPoints.h"
#include "SelectionFrame.h"
#include "TonquillBitmap.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillSimpleTextDlg.h"
#include "TonquillText.h"
#include "TonquillTextBlock.h"
#include "TonquillTimeSig.h"
#include "TonquillVectorGrandstaff.h"
#include "TonquillVectorInteractiveLine.h"
#include "TonquillVectorLineTab.h"
#include "TonquillVectorNoteTie.h"
#include "TonquillVectorTriplet.h"
#include "TonquillView.h"
#include "TrackwrightThread.h"

#include <QApplication>
#include <QTemporaryDir>

#include <cstdio>

namespace
{
bool check(bool holds, const char *what)
{
    if (!holds)
        std::fprintf(stderr, "not so: %s\n", what);
    return holds;
}

/** A quarter circle over a chord of 10 has a radius of 5 times the root of 2. */
bool arcIsThere()
{
    float radius = 0;
    float start = 0;
    float end = 0;
    float x = 0;
    float y = 0;
    ArcValuesFromPoints(0, 0, 10, 0, 90, &radius, &start, &end, &x, &y);
    return check(qAbs(radius - 7.071F) < 0.01F, "the quarter circle's radius is 7.071") &&
           check(qAbs(x - 5) < 0.01F, "its centre lies over the chord's middle");
}

bool windowWorks()
{
    TonquillMainWin window;
    window.show();
    window.scene->constructItem(QStringLiteral("tonquill_bitmap 19 120 300 0\n"), false, 0);
    return check(g_pMainWin == &window, "g_pMainWin is the window") &&
           check(g_csINIPath == QCoreApplication::applicationDirPath(), "g_csINIPath is set") &&
           check(window.isVisible(), "the window shows") &&
           check(!window.symbols.value(19).isNull(), "the glyphs are there") &&
           check(window.scene->notifyTW() ==
                     QStringLiteral("tonquill_pagecount 1\ntonquill_bitmap 19 120 300 0\n"),
                 "the document is written");
}
} // namespace

int main(int argc, char *argv[])
{
    // The host's socket lies in the temporary folder; a real host must not hear of this.
    const QTemporaryDir folder;
    qputenv("TMPDIR", folder.path().toLocal8Bit());
    QApplication application(argc, argv);
    return arcIsThere() && windowWorks() ? 0 : 1;
}
