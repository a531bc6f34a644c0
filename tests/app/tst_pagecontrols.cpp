#include "TestMain.h"
#include "TonquillBitmap.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillView.h"
#include "ui_TonquillMainWin.h"

#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTimer>

namespace
{
// The window's paper is A4, 11.69 inches high: 11.69 x 90, a twentieth of that, and both.
constexpr double height = 1052.1;
constexpr double gap = 52.605;
constexpr double pitch = 1104.705;

/** The page of a height by the rule: the lowest quarter of a page counts as the next. */
int pageAt(double y)
{
    return static_cast<int>((0.25 * height + y) / pitch + 1.0);
}
} // namespace

/** The controls under the view, the view's scrolling and its keys. */
class PageControlsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_window.reset(); }
    void currentPointIsTheViewsOwnPlaceInItsParent();
    void scrollingTellsTheCurrentPoint();
    void labelFollowsTheTopLeftCorner_data();
    void labelFollowsTheTopLeftCorner();
    void labelCountsTheWholeDocument();
    void labelTakesAnyPoint_data();
    void labelTakesAnyPoint();
    void gotoPageCentresOnItsTop_data();
    void gotoPageCentresOnItsTop();
    void gotoPageIgnoresWhatIsNoPage_data();
    void gotoPageIgnoresWhatIsNoPage();
    void insertMenuListsFourPlaces();
    void insertMenuInserts_data();
    void insertMenuInserts();
    void insertMenuMayBeLeft();
    void pageBeforeTheCurrentOneIsInserted();
    void pageAfterTheCurrentOneIsInserted();
    void deleteButtonDeletesTheCurrentPage();
    void deleteButtonKeepsTheLastPage();
    void arrowKeysNeverScroll_data();
    void arrowKeysNeverScroll();
    void otherKeysScrollAsUsual();
    void newItemFollowsTheRealPointer();

private:
    void scrollTo(int value);
    QString label() const;
    TonquillBitmap *addGlyph(QPointF pos);

    std::unique_ptr<TonquillMainWin> m_window;
    TonquillView *m_view = nullptr;
};

void PageControlsTest::init()
{
    m_window = std::make_unique<TonquillMainWin>();
    m_view = m_window->view();
    m_window->scene->setPageNum(3);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    QCOMPARE(m_window->scene->paperRect.height(), height);
    QCOMPARE(m_window->scene->pageSpacing, gap);
}

void PageControlsTest::scrollTo(int value)
{
    m_view->verticalScrollBar()->setValue(value);
}

QString PageControlsTest::label() const
{
    return m_window->ui->lbl_page->text();
}

TonquillBitmap *PageControlsTest::addGlyph(QPointF pos)
{
    TonquillBitmap *item = m_window->InsertBitmapSymbol(2, false, false);
    item->setPos(pos);
    return item;
}

void PageControlsTest::currentPointIsTheViewsOwnPlaceInItsParent()
{
    // The layout's margin is 4.
    QCOMPARE(m_view->pos(), QPoint(4, 4));
    scrollTo(500);
    QCOMPARE(m_view->curScenePos().y(), 504.0);
    QCOMPARE(m_view->curScenePos(), m_view->mapToScene(QPoint(4, 4)));
}

void PageControlsTest::scrollingTellsTheCurrentPoint()
{
    const QSignalSpy spy(m_view, SIGNAL(scrolled(QPointF)));
    scrollTo(300);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.constFirst().constFirst().toPointF().y(), 304.0);
}

void PageControlsTest::labelFollowsTheTopLeftCorner_data()
{
    QTest::addColumn<int>("scroll");
    QTest::addColumn<QString>("text");
    // Page 2 begins at 0.75 x 1052.1 + 52.605 = 841.68, page 3 a pitch further at 1946.385; the
    // point that counts is 4 below the top edge.
    QTest::newRow("just above page 2") << 837 << "1/3";
    QTest::newRow("just inside page 2") << 838 << "2/3";
    QTest::newRow("just above page 3") << 1942 << "2/3";
    QTest::newRow("just inside page 3") << 1943 << "3/3";
}

void PageControlsTest::labelFollowsTheTopLeftCorner()
{
    QFETCH(int, scroll);
    QFETCH(QString, text);
    m_window->ui->sb_page->setValue(50);
    scrollTo(scroll);
    QCOMPARE(m_view->verticalScrollBar()->value(), scroll);
    QCOMPARE(label(), text);
    QCOMPARE(m_window->ui->sb_page->value(), 50);
}

void PageControlsTest::labelCountsTheWholeDocument()
{
    QCOMPARE(label(), QString("1/1"));
    m_window->OnMenuAddPageEnd();
    QCOMPARE(label(), QString("1/4"));
}

void PageControlsTest::labelTakesAnyPoint_data()
{
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<QString>("text");
    QTest::newRow("first page") << QPointF(0, 0) << "1/3";
    QTest::newRow("third page") << QPointF(0, 2 * pitch) << "3/3";
    QTest::newRow("behind the last") << QPointF(0, 5 * pitch) << "6/3";
}

void PageControlsTest::labelTakesAnyPoint()
{
    QFETCH(QPointF, point);
    QFETCH(QString, text);
    m_window->onViewScroll(point);
    QCOMPARE(label(), text);
}

void PageControlsTest::gotoPageCentresOnItsTop_data()
{
    QTest::addColumn<int>("page");
    QTest::newRow("second") << 2;
    QTest::newRow("third") << 3;
}

void PageControlsTest::gotoPageCentresOnItsTop()
{
    QFETCH(int, page);
    m_window->ui->sb_page->setValue(page);
    const double top = (page - 1) * pitch;
    const double middle = m_view->mapToScene(m_view->viewport()->rect().center()).y();
    QVERIFY2(qAbs(middle - top) <= 2, qPrintable(QString::number(middle)));
    const double corner = m_view->verticalScrollBar()->value() + 4;
    QCOMPARE(label(), QString("%1/3").arg(pageAt(corner)));
}

void PageControlsTest::gotoPageIgnoresWhatIsNoPage_data()
{
    QTest::addColumn<int>("page");
    QTest::newRow("zero") << 0;
    QTest::newRow("behind the last") << 4;
    QTest::newRow("largest") << 99;
    QTest::newRow("negative") << -1;
}

void PageControlsTest::gotoPageIgnoresWhatIsNoPage()
{
    QFETCH(int, page);
    scrollTo(838);
    m_window->ui->lbl_page->setText("as it was");
    m_window->OnSetCurPage(page);
    QCOMPARE(m_view->verticalScrollBar()->value(), 838);
    QCOMPARE(label(), QString("as it was"));
}

void PageControlsTest::insertMenuListsFourPlaces()
{
    QStringList texts;
    QTimer::singleShot(0, [&texts] {
        QWidget *menu = QApplication::activePopupWidget();
        for (const QAction *action : menu->actions()) {
            texts << action->text();
            QVERIFY(action->shortcut().isEmpty());
        }
        menu->close();
    });
    m_window->ui->pb_insertPage->click();
    QCOMPARE(texts, QStringList({"At the Beginning", "Before The Current Page",
                                 "After The Current Page", "At the End"}));
    QVERIFY(!QApplication::activePopupWidget());
}

void PageControlsTest::insertMenuInserts_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<QList<bool>>("moves");
    // With the second page as the current one: which of the three pages' items move.
    QTest::newRow("at the beginning") << 0 << QList<bool>{true, true, true};
    QTest::newRow("before the current page") << 1 << QList<bool>{false, true, true};
    QTest::newRow("after the current page") << 2 << QList<bool>{false, false, true};
    QTest::newRow("at the end") << 3 << QList<bool>{false, false, false};
}

void PageControlsTest::insertMenuInserts()
{
    QFETCH(int, entry);
    QFETCH(QList<bool>, moves);
    QList<TonquillBitmap *> items;
    for (int page = 0; page < 3; ++page)
        items << addGlyph(QPointF(300, page * pitch + 500));
    scrollTo(1200);
    QTimer::singleShot(0, [entry] {
        QWidget *menu = QApplication::activePopupWidget();
        menu->actions().value(entry)->trigger();
        menu->close();
    });
    QTest::mouseClick(m_window->ui->pb_insertPage, Qt::LeftButton);
    QCOMPARE(m_window->pageCount, 4);
    for (int page = 0; page < 3; ++page) {
        const double before = page * pitch + 500;
        QCOMPARE(items[page]->y(), moves[page] ? before + pitch : before);
    }
    QCOMPARE(label(), QString("2/4"));
}

void PageControlsTest::insertMenuMayBeLeft()
{
    QTimer::singleShot(0, [] { QApplication::activePopupWidget()->close(); });
    m_window->ui->pb_insertPage->click();
    QCOMPARE(m_window->pageCount, 3);
}

void PageControlsTest::pageBeforeTheCurrentOneIsInserted()
{
    const TonquillBitmap *second = addGlyph(QPointF(300, pitch + 500));
    const TonquillBitmap *third = addGlyph(QPointF(300, 2 * pitch + 500));
    scrollTo(2100);
    QCOMPARE(label(), QString("3/3"));
    m_window->OnMenuAddPageBeforeCurPage();
    QCOMPARE(second->y(), pitch + 500);
    QCOMPARE(third->y(), 2 * pitch + 500 + pitch);
    QCOMPARE(label(), QString("3/4"));
}

void PageControlsTest::pageAfterTheCurrentOneIsInserted()
{
    const TonquillBitmap *third = addGlyph(QPointF(300, 2 * pitch + 500));
    scrollTo(2100);
    m_window->OnMenuAddPageAfterCurPage();
    QCOMPARE(third->y(), 2 * pitch + 500);
    QCOMPARE(m_window->pageCount, 4);
    QCOMPARE(label(), QString("3/4"));
}

void PageControlsTest::deleteButtonDeletesTheCurrentPage()
{
    const QPointer<TonquillBitmap> first = addGlyph(QPointF(300, 500));
    const QPointer<TonquillBitmap> second = addGlyph(QPointF(300, pitch + 500));
    const QPointer<TonquillBitmap> third = addGlyph(QPointF(300, 2 * pitch + 500));
    scrollTo(1200);
    QTest::mouseClick(m_window->ui->pb_deletePAge, Qt::LeftButton);
    QVERIFY(first && !second && third);
    QCOMPARE(first->y(), 500.0);
    // Two gaps less than a pitch: 1052.1 - 52.605.
    QCOMPARE(third->y(), 2 * pitch + 500 - (height - gap));
    QCOMPARE(m_window->pageCount, 2);
    QCOMPARE(label(), QString("%1/2").arg(pageAt(m_view->verticalScrollBar()->value() + 4)));
}

void PageControlsTest::deleteButtonKeepsTheLastPage()
{
    for (int i = 0; i < 4; ++i)
        m_window->ui->pb_deletePAge->click();
    QCOMPARE(m_window->pageCount, 1);
    QCOMPARE(label(), QString("1/1"));
}

void PageControlsTest::arrowKeysNeverScroll_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<bool>("selected");
    QTest::addColumn<QPointF>("step");
    const auto rows = [](const char *name, Qt::Key key, QPointF step) {
        QTest::addRow("%s", name) << key << false << QPointF(0, 0);
        QTest::addRow("%s, item selected", name) << key << true << step;
    };
    rows("left", Qt::Key_Left, QPointF(-1, 0));
    rows("right", Qt::Key_Right, QPointF(1, 0));
    rows("up", Qt::Key_Up, QPointF(0, -1));
    rows("down", Qt::Key_Down, QPointF(0, 1));
}

void PageControlsTest::arrowKeysNeverScroll()
{
    QFETCH(Qt::Key, key);
    QFETCH(bool, selected);
    QFETCH(QPointF, step);
    TonquillBitmap *item = addGlyph(QPointF(300, 1300));
    item->setSelected(selected);
    m_window->resize(500, 500);
    QTRY_VERIFY(m_view->horizontalScrollBar()->maximum() > 20);
    scrollTo(900);
    m_view->horizontalScrollBar()->setValue(10);
    QTest::keyClick(m_view, key);
    QTest::keyClick(m_view->viewport(), key);
    QCOMPARE(m_view->verticalScrollBar()->value(), 900);
    QCOMPARE(m_view->horizontalScrollBar()->value(), 10);
    QCOMPARE(item->pos(), QPointF(300, 1300) + 2 * step);
}

void PageControlsTest::otherKeysScrollAsUsual()
{
    QTest::keyClick(m_view, Qt::Key_PageDown);
    QVERIFY(m_view->verticalScrollBar()->value() > 0);
}

void PageControlsTest::newItemFollowsTheRealPointer()
{
    const TonquillBitmap *item = m_window->InsertBitmapSymbol(2, true, false);
    scrollTo(600);
    for (const QPoint place : {QPoint(200, 100), QPoint(300, 250)}) {
        QTest::mouseMove(m_view->viewport(), place);
        QTRY_COMPARE(item->pos(), m_view->mapToScene(place));
    }
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(300, 250));
    QCOMPARE(item->itemStatus(), 0);
}

TONQUILL_TEST_MAIN(PageControlsTest)
#include "tst_pagecontrols.moc"
