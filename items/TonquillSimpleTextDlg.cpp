#include "TonquillSimpleTextDlg.h"

#include "TonquillText.h"
#include "Truncation.h"
#include "ui_TonquillSimpleTextDlg.h"

#include <QColorDialog>

TonquillSimpleTextDlg::TonquillSimpleTextDlg(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui_TonquillSimpleTextDlg)
{
    ui->setupUi(this);
    ui->le_text->setFocus();
    setDefaultTextColor(Qt::black);
}

TonquillSimpleTextDlg::~TonquillSimpleTextDlg()
{
    delete ui;
}

void TonquillSimpleTextDlg::fillFrom(const TonquillText &item)
{
    setFont(item.font());
    setPlainText(item.toPlainText());
    setDefaultTextColor(item.defaultTextColor());
    setAngle(static_cast<float>(item.rotation()));
}

void TonquillSimpleTextDlg::applyTo(TonquillText &item) const
{
    item.setFont(textFont());
    item.setPlainText(text());
    item.setDefaultTextColor(color());
}

void TonquillSimpleTextDlg::setPlainText(QString text)
{
    ui->le_text->setText(text);
}

QString TonquillSimpleTextDlg::text() const
{
    return ui->le_text->text();
}

void TonquillSimpleTextDlg::setDefaultTextColor(QColor color)
{
    m_color = color;
    QPalette palette = ui->pb_color->palette();
    palette.setBrush(ui->pb_color->backgroundRole(), color);
    ui->pb_color->setPalette(palette);
}

void TonquillSimpleTextDlg::setAngle(float degrees)
{
    ui->sb_angle->setValue(degrees);
}

int TonquillSimpleTextDlg::angle() const
{
    return truncatedToInt(ui->sb_angle->value());
}

void TonquillSimpleTextDlg::setFont(QFont font)
{
    const int entry =
        ui->cb_font->findText(font.family(), Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (entry >= 0)
        ui->cb_font->setCurrentIndex(entry);
    ui->cb_bold->setChecked(font.weight() > QFont::Normal);
    ui->cb_italic->setChecked(font.style() != QFont::StyleNormal);
    ui->cb_underline->setChecked(font.underline());
    ui->sb_pointSize->setValue(font.pointSizeF());
}

QFont TonquillSimpleTextDlg::textFont() const
{
    QFont font;
    font.setWeight(ui->cb_bold->isChecked() ? QFont::Bold : QFont::Normal);
    font.setStyle(ui->cb_italic->isChecked() ? QFont::StyleItalic : QFont::StyleNormal);
    font.setUnderline(ui->cb_underline->isChecked());
    font.setFamily(ui->cb_font->currentText());
    font.setPointSize(truncatedToInt(ui->sb_pointSize->value()));
    return font;
}

void TonquillSimpleTextDlg::on_pb_ok_clicked()
{
    accept();
}

void TonquillSimpleTextDlg::on_pb_cancel_clicked()
{
    reject();
}

void TonquillSimpleTextDlg::on_pb_color_clicked()
{
    // Intentional: always starts with black, and cancelling stores the invalid colour.
    setDefaultTextColor(QColorDialog::getColor(Qt::black, this, QStringLiteral("Select Color")));
}
