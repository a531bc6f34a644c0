#pragma once

#include <QPainter>
#include <QPrinter>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>

/** The output of `paint` on paper: the bytes of a one-page PDF file, without its date. */
inline QByteArray printedPage(const std::function<void(QPainter &)> &paint)
{
    const QTemporaryDir folder;
    QPrinter printer(QPrinter::ScreenResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(folder.filePath("page.pdf"));
    QPainter painter(&printer);
    paint(painter);
    painter.end();
    QFile file(printer.outputFileName());
    if (!file.open(QIODevice::ReadOnly))
        qFatal("nothing was printed");
    return QString::fromLatin1(file.readAll())
        .remove(QRegularExpression("/CreationDate \\([^)]*\\)"))
        .toLatin1();
}
