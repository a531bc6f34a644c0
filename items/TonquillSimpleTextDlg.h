#pragma once

#include <QColor>
#include <QDialog>

class TonquillText;
class Ui_TonquillSimpleTextDlg;

/** The "Simple Text" dialog: text, font, colour and angle of a TonquillText, new or existing. */
class TonquillSimpleTextDlg : public QDialog
{
    Q_OBJECT

public:
    explicit TonquillSimpleTextDlg(QWidget *parent = nullptr);
    ~TonquillSimpleTextDlg() override;

    /** Shows what `item` has. */
    void fillFrom(const TonquillText &item);

    /** Gives `item` the font, text and colour shown here; its angle is the caller's. */
    void applyTo(TonquillText &item) const;

    void setPlainText(QString text);
    QString text() const;

    void setDefaultTextColor(QColor color);
    /** Invalid after a cancelled choice of colour; a text then counts as black. */
    QColor color() const { return m_color; }

    void setAngle(float degrees);
    /** Whole degrees. */
    int angle() const;

    /** Selects the family if it is one of the five; the style and the size are shown as they are.
     */
    void setFont(QFont font);
    QFont textFont() const;

private Q_SLOTS:
    void on_pb_ok_clicked();
    void on_pb_cancel_clicked();
    void on_pb_color_clicked();

private:
    Ui_TonquillSimpleTextDlg *ui;
    QColor m_color;
};
