#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/**
 * Estimates the cost of laying out a formatted text from its tags alone, because the layout itself
 * could take too long. Tags are parsed exactly as Qt's HTML parser does, which differs from
 * standard HTML.
 */
class HtmlOutline
{
public:
    explicit HtmlOutline(const QString &html);

    /** The nesting depth of elements. */
    qsizetype depth() const { return m_depth; }

    /** The nesting depth of tables. */
    qsizetype tableDepth() const { return m_tableDepth; }

    /**
     * The cells of all tables, including those covered by spans. Each counts twice for every
     * enclosing table, since that is how often it is laid out.
     */
    double cells() const { return m_cells; }

    /** The URLs of the pictures. */
    const QStringList &pictures() const { return m_pictures; }

private:
    using Attributes = QHash<QString, QString>;

    /** A table as far as it has been read. */
    struct Table
    {
        double rows = 0;
        double columns = 0;
        double inRow = 0;        ///< columns of the current row
        double reaching = 0;     ///< columns covered by spans from rows above
        double reachingDown = 0; ///< rows below that the longest of those covers
    };

    bool atEnd() const { return m_at >= m_html.size(); }
    bool isNext(QChar c, qsizetype ahead = 0) const;
    void skipBlanks();
    void skipBehind(QChar c);
    QString word();
    QString entity();
    Attributes attributes();
    void readTag();
    void readDeclaration();
    void open(const QString &tag, const Attributes &attributes);
    void close(const QString &tag);
    void closeLike(const QString &tag);
    void addCell(const Attributes &attributes);
    void finishTable();

    const QString &m_html;
    qsizetype m_at = 0;
    QStringList m_open;
    QList<Table> m_tables{Table()}; ///< the first is for cells outside of any table
    qsizetype m_depth = 0;
    qsizetype m_tableDepth = 0;
    double m_cells = 0;
    QStringList m_pictures;
};
