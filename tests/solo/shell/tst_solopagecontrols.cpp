#include "PageControls.h"
#include "SoloTestMain.h"
#include "SoloWindow.h"
#include "TonquillBitmap.h"
#include "TonquillScene.h"
#include "TonquillView.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTimer>

namespace
{
// A4: 11.69 inches of 90 units, and a twentieth of that between two pages.
constexpr double height = 1052.1;
constexpr double pitch = 1104.705;
} // namespace

/** The controls under the view in the program of its own. */
class SoloPageControlsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aPageComesToTheTop_data();
    void aPageComesToTheTop();
    void theButtonDeletesThePageThatItNames();
    void whatFollowsADeletedPageKeepsItsPlaceOnItsPage();
    void theButtonNamesThePageAfterEveryChange();
    void theEndOfTheLastPageIsNoFurtherPage();
    void theInsertMenuMeansTheSamePage_data();
    void theInsertMenuMeansTheSamePage();
    void typingTwelveGoesToTwelve();
    void pagesBeyondAHundredCanBeGoneTo();
    void theSceneKeepsItsRectangle();
    void aSinglePageHasNoRoomBelow();
    void zoomingOutKeepsTheMiddle();
    void openingShowsTheFirstPage();

private:
    void show(int pages, QSize size, double scale);
    void zoomTo(double scale);
    double topOfView() const;
    QString label() const { return child<QLabel>("lbl_page")->text(); }
    QString button() const { return child<QPushButton>("pb_deletePAge")->text(); }
    TonquillBitmap *addGlyph(double y);

    template <typename Widget>
    Widget *child(const char *name) const
    {
        return m_solo->window().findChild<Widget *>(QString::fromLatin1(name));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<SoloWindow> m_solo;
    TonquillView *m_view = nullptr;
};

void SoloPageControlsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_solo = std::make_unique<SoloWindow>(m_folder->path());
    m_view = m_solo->window().view();
    m_solo->show();
    QVERIFY(QTest::qWaitForWindowExposed(&m_solo->window()));
    QCOMPARE(m_solo->window().scene->paperRect.height(), height);
    QCOMPARE(m_solo->window().scene->pagePitch(), pitch);
}

void SoloPageControlsTest::cleanup()
{
    m_solo->session().close();
    m_solo.reset();
    m_folder.reset();
}

void SoloPageControlsTest::show(int pages, QSize size, double scale)
{
    while (m_solo->window().pageCount < pages)
        m_solo->window().scene->addPageAtEnd();
    m_solo->window().resize(size);
    QTRY_COMPARE(m_solo->window().size(), size);
    zoomTo(scale);
}

/** Zooms as Ctrl with the wheel does: a notch, 120 units, is a factor of 1.25. */
void SoloPageControlsTest::zoomTo(double scale)
{
    const int turn = qRound(120 * std::log(scale / m_view->transform().m11()) / std::log(1.25));
    const QPoint place(100, 100);
    QWheelEvent wheel(place, m_view->viewport()->mapToGlobal(place), QPoint(), QPoint(0, turn),
                      Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(m_view->viewport(), &wheel);
    QVERIFY(qAbs(m_view->transform().m11() / scale - 1) < 0.01);
}

double SoloPageControlsTest::topOfView() const
{
    return m_view->mapToScene(0, 0).y();
}

TonquillBitmap *SoloPageControlsTest::addGlyph(double y)
{
    TonquillBitmap *item = m_solo->window().InsertBitmapSymbol(2, false, false);
    item->setPos(300, y);
    return item;
}

void SoloPageControlsTest::aPageComesToTheTop_data()
{
    QTest::addColumn<int>("pages");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("scale");
    for (const int pages : {1, 2, 3, 7}) {
        for (const QSize size : {QSize(826, 704), QSize(900, 2200), QSize(700, 300)}) {
            for (const double scale : {0.1, 0.5, 1.0, 2.0, 8.0})
                QTest::addRow("%d pages, %d high, at %g", pages, size.height(), scale)
                    << pages << size << scale;
        }
    }
}

void SoloPageControlsTest::aPageComesToTheTop()
{
    QFETCH(int, pages);
    QFETCH(QSize, size);
    QFETCH(double, scale);
    show(pages, size, scale);
    for (int page = pages; page >= 1; --page) {
        child<QSpinBox>("sb_page")->setValue(page);
        const double pixel = 1 / scale;
        QVERIFY2(qAbs(topOfView() - (page - 1) * pitch) <= pixel,
                 qPrintable(QString::number(topOfView())));
        QCOMPARE(m_solo->window().scene->getPageAt(m_view->curScenePos()), page);
        QCOMPARE(label(), QString("%1/%2").arg(page).arg(pages));
        QCOMPARE(button(), QString("Delete Page %1").arg(page));
    }
}

void SoloPageControlsTest::theButtonDeletesThePageThatItNames()
{
    show(3, QSize(900, 2200), 1);
    const QPointer<TonquillBitmap> first = addGlyph(300);
    const QPointer<TonquillBitmap> second = addGlyph(pitch + 300);
    const QPointer<TonquillBitmap> third = addGlyph(2 * pitch + 300);
    child<QSpinBox>("sb_page")->setValue(2);
    QCOMPARE(button(), QString("Delete Page 2"));
    QTest::mouseClick(child<QPushButton>("pb_deletePAge"), Qt::LeftButton);
    QVERIFY(first && !second && third);
    QCOMPARE(first->y(), 300.0);
    QCOMPARE(m_solo->window().pageCount, 2);
    QCOMPARE(label(), QString("2/2"));
    QCOMPARE(button(), QString("Delete Page 2"));
}

void SoloPageControlsTest::whatFollowsADeletedPageKeepsItsPlaceOnItsPage()
{
    show(4, QSize(900, 2200), 1);
    // The last line of a page, which is in the frame as long as it does not come to lie lower.
    constexpr double last = 1000;
    const TonquillBitmap *first = addGlyph(last);
    const TonquillBitmap *third = addGlyph(2 * pitch + last);
    const TonquillBitmap *fourth = addGlyph(3 * pitch + 20);
    child<QSpinBox>("sb_page")->setValue(2);
    QTest::mouseClick(child<QPushButton>("pb_deletePAge"), Qt::LeftButton);
    QCOMPARE(first->y(), last);
    QCOMPARE(third->y(), pitch + last);
    QCOMPARE(fourth->y(), 2 * pitch + 20);
    QTest::mouseClick(child<QPushButton>("pb_deletePAge"), Qt::LeftButton);
    QCOMPARE(fourth->y(), pitch + 20);
}

void SoloPageControlsTest::theButtonNamesThePageAfterEveryChange()
{
    show(3, QSize(826, 704), 1);
    // Page 2 begins to be the current one at 0.75 x 1052.1 + 52.605 = 841.68, 4 below the edge.
    m_view->verticalScrollBar()->setValue(837);
    QCOMPARE(button(), QString("Delete Page 1"));
    m_view->verticalScrollBar()->setValue(838);
    QCOMPARE(button(), QString("Delete Page 2"));
    // Around the middle of a view that is so high, page 1 comes to the top.
    m_solo->window().resize(900, 2200);
    zoomTo(0.1);
    QCOMPARE(button(), QString("Delete Page 1"));
    zoomTo(1);
    child<QSpinBox>("sb_page")->setValue(3);
    QCOMPARE(button(), QString("Delete Page 3"));
    m_solo->session().edits().check();
    m_solo->window().scene->deletePage(1);
    m_solo->session().edits().check();
    QCOMPARE(button(), QString("Delete Page 2"));
    QCOMPARE(label(), QString("2/2"));
    m_solo->session().makeNew();
    QCOMPARE(button(), QString("Delete Page 1"));
    QCOMPARE(label(), QString("1/1"));
}

void SoloPageControlsTest::theEndOfTheLastPageIsNoFurtherPage()
{
    show(2, QSize(700, 300), 8);
    addGlyph(pitch + 300);
    m_view->verticalScrollBar()->setValue(m_view->verticalScrollBar()->maximum());
    QCOMPARE(m_solo->window().scene->getPageAt(m_view->curScenePos()), 3);
    QCOMPARE(label(), QString("2/2"));
    QCOMPARE(button(), QString("Delete Page 2"));
    child<QPushButton>("pb_deletePAge")->click();
    QVERIFY(m_solo->window().scene->items().isEmpty());
    QCOMPARE(m_solo->window().pageCount, 1);
}

void SoloPageControlsTest::theInsertMenuMeansTheSamePage_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QList<bool>>("moves");
    // Page 2 of three is at the top: which of the pages' items move.
    QTest::newRow("beginning") << "At the Beginning" << QList<bool>{true, true, true};
    QTest::newRow("before") << "Before The Current Page" << QList<bool>{false, true, true};
    QTest::newRow("after") << "After The Current Page" << QList<bool>{false, false, true};
    QTest::newRow("end") << "At the End" << QList<bool>{false, false, false};
}

void SoloPageControlsTest::theInsertMenuMeansTheSamePage()
{
    QFETCH(QString, entry);
    QFETCH(QList<bool>, moves);
    show(3, QSize(900, 2200), 1);
    QList<TonquillBitmap *> items;
    for (int page = 0; page < 3; ++page)
        items << addGlyph(page * pitch + 300);
    child<QSpinBox>("sb_page")->setValue(2);
    QTimer::singleShot(0, this, [entry] {
        QWidget *menu = QApplication::activePopupWidget();
        for (QAction *action : menu->actions()) {
            if (action->text() == entry)
                action->trigger();
        }
        menu->close();
    });
    QTest::mouseClick(child<QPushButton>("pb_insertPage"), Qt::LeftButton);
    QCOMPARE(m_solo->window().pageCount, 4);
    for (int page = 0; page < 3; ++page) {
        const double before = page * pitch + 300;
        QCOMPARE(items[page]->y(), moves[page] ? before + pitch : before);
    }
    QCOMPARE(label(), QString("2/4"));
    QCOMPARE(button(), QString("Delete Page 2"));
}

void SoloPageControlsTest::typingTwelveGoesToTwelve()
{
    show(12, QSize(826, 704), 1);
    auto *spin = child<QSpinBox>("sb_page");
    spin->setFocus();
    spin->selectAll();
    QTest::keyClicks(spin, "12");
    QCOMPARE(label(), QString("12/12"));
    QVERIFY(qAbs(topOfView() - 11 * pitch) <= 1);
    // To the same page once more.
    m_view->verticalScrollBar()->setValue(0);
    QTest::keyClick(spin, Qt::Key_Return);
    QCOMPARE(label(), QString("12/12"));
}

void SoloPageControlsTest::pagesBeyondAHundredCanBeGoneTo()
{
    m_solo->window().scene->setPageNum(250);
    auto *spin = child<QSpinBox>("sb_page");
    spin->setFocus();
    spin->selectAll();
    QTest::keyClicks(spin, "250");
    QCOMPARE(label(), QString("250/250"));
}

void SoloPageControlsTest::theSceneKeepsItsRectangle()
{
    show(2, QSize(900, 2200), 0.5);
    QCOMPARE(m_solo->window().scene->sceneRect().height(), 2 * pitch);
    QVERIFY(m_view->sceneRect().height() > 2 * pitch);
    QCOMPARE(m_view->sceneRect().width(), m_solo->window().scene->sceneRect().width());
}

void SoloPageControlsTest::aSinglePageHasNoRoomBelow()
{
    show(1, QSize(900, 2200), 1);
    QCOMPARE(m_view->sceneRect(), m_solo->window().scene->sceneRect());
    QCOMPARE(m_view->verticalScrollBar()->maximum(), 0);
}

void SoloPageControlsTest::zoomingOutKeepsTheMiddle()
{
    show(3, QSize(900, 2200), 1);
    child<QSpinBox>("sb_page")->setValue(3);
    const QPoint middle = m_view->viewport()->rect().center();
    const double before = m_view->mapToScene(middle).y();
    for (QAction *action : m_solo->window().findChildren<QAction *>()) {
        if (action->text() == "Zoom &Out")
            action->trigger();
    }
    QVERIFY(m_view->transform().m11() < 1);
    QVERIFY(qAbs(m_view->mapToScene(middle).y() - before) <= 3);
}

void SoloPageControlsTest::openingShowsTheFirstPage()
{
    QCOMPARE(topOfView(), 0.0);
    QCOMPARE(label(), QString("1/1"));
    QCOMPARE(button(), QString("Delete Page 1"));
    show(3, QSize(900, 2200), 1);
    child<QSpinBox>("sb_page")->setValue(3);
    const QString path = m_folder->filePath("song.tonquill");
    QCOMPARE(m_solo->session().saveAs(path), QString());
    m_solo->files().openFile(path);
    QCOMPARE(topOfView(), 0.0);
    QCOMPARE(label(), QString("1/3"));
    QCOMPARE(button(), QString("Delete Page 1"));
}

TONQUILL_SOLO_TEST_MAIN(SoloPageControlsTest)
#include "tst_solopagecontrols.moc"
