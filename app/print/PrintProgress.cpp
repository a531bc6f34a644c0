#include "PrintProgress.h"

#include "HostLink.h"

namespace
{
constexpr int noticedAsLong = 1000; // milliseconds
} // namespace

PrintProgress::PrintProgress(QWidget &window, HostLink &hostLink, int pages)
    : m_hostLink(hostLink)
    , m_dialog(&window)
{
    m_hostLink.pause();
    m_dialog.setWindowTitle(QStringLiteral("Tonquill"));
    m_dialog.setLabelText(tr("Printing..."));
    m_dialog.setRange(0, pages);
    m_dialog.setMinimumDuration(noticedAsLong);
    m_dialog.setWindowModality(Qt::ApplicationModal);
}

PrintProgress::~PrintProgress()
{
    m_hostLink.resume();
}

bool PrintProgress::beginPage(int index)
{
    m_dialog.setValue(index);
    return !m_dialog.wasCanceled();
}
