#include "Logging.h"
#include "PagePrinter.h"
#include "TonquillMainWin.h"

void TonquillMainWin::OnToolBar1ButtonPrintPreview()
{
    m_pagePrinter->showPreview();
}

void TonquillMainWin::OnToolBar1ButtonPageSetup()
{
    m_pagePrinter->showPageSetup();
}

void TonquillMainWin::OnToolBar1ButtonPrint()
{
    filePrint();
}

void TonquillMainWin::OnPageSetupAccepted()
{
    qCDebug(lcTonquill) << "onPAgeSetupaccepted";
}

void TonquillMainWin::filePrint()
{
    m_pagePrinter->showPrintDialog();
}

void TonquillMainWin::print(QPrinter *printer)
{
    m_pagePrinter->print(*printer);
}

void TonquillMainWin::printer() {}
