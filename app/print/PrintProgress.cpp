#include "PrintProgress.h"

namespace
{
constexpr int noticedAsLong = 1000; // milliseconds
} // namespace

PrintProgress::PrintProgress(QWidget &window, const OutsidePause &pause, int pages)
    : m_pause(pause)
    , m_dialog(&window)
{
    m_pause.begin();
    m_dialog.setWindowTitle(QStringLiteral("Tonquill"));
    m_dialog.setLabelText(tr("Printing..."));
    m_dialog.setRange(0, pages);
    m_dialog.setMinimumDuration(noticedAsLong);
    m_dialog.setWindowModality(Qt::ApplicationModal);
}

PrintProgress::~PrintProgress()
{
    m_pause.end();
}

bool PrintProgress::beginPage(int index)
{
    m_dialog.setValue(index);
    return !m_dialog.wasCanceled();
}
