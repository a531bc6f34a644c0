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

    /** Fills the controls from `item`. */
    void fillFrom(const TonquillText &item);

    /** Sets the font, text and colour of `item`; the caller sets its angle. */
    void applyTo(TonquillText &item) const;

    void setPlainText(QString text);
    QString text() const;

    void setDefaultTextColor(QColor color);
    /** Invalid after a cancelled colour dialog; the text is then black. */
    QColor color() const { return m_color; }

    void setAngle(float degrees);
    /** Whole degrees. */
    int angle() const;

    /** Selects the family if it is one of the five, and shows the style and the size. */
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
