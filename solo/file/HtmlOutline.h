#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/**
 * What a formatted text would cost to lay out, told from its tags alone: laying it out could take
 * longer than anyone waits. Tags are read as Qt's reader of HTML reads them, whose notion of HTML
 * is its own.
 */
class HtmlOutline
{
public:
    explicit HtmlOutline(const QString &html);

    /** How many elements stand in each other. */
    qsizetype depth() const { return m_depth; }

    /** How many tables stand in each other. */
    qsizetype tableDepth() const { return m_tableDepth; }

    /**
     * The cells of all tables, with those that spans take up. Each counts twice as much for every
     * table around its own, for that is how often it is laid out.
     */
    double cells() const { return m_cells; }

    /** The addresses of the pictures. */
    const QStringList &pictures() const { return m_pictures; }

private:
    using Attributes = QHash<QString, QString>;

    /** A table as far as it was read. */
    struct Table
    {
        double rows = 0;
        double columns = 0;
        double inRow = 0;        ///< columns of the row that is being read
        double reaching = 0;     ///< columns that reach down from rows above
        double reachingDown = 0; ///< how many rows further the lowest of those reaches
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
