#pragma once

#include <QList>

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <utility>

/**
 * A list that is cheap to keep in many slightly different states. It is held in chunks, which
 * copies share: a change touches the chunk that it is in, and where two lists share their chunks
 * they are known to be equal without a look at what these hold.
 */
template <typename T>
class ChunkedList
{
public:
    /** Values from the index `at` on in an older list, and those in their place in a newer one. */
    struct Change
    {
        qsizetype at = 0;
        qsizetype olderCount = 0;
        qsizetype newerCount = 0;
        bool operator==(const Change &) const = default;
    };

    class const_iterator
    {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = T;
        using difference_type = qsizetype;
        using pointer = const T *;
        using reference = const T &;

        const_iterator() = default;
        reference operator*() const { return m_list->m_chunks[m_chunk][m_offset]; }
        pointer operator->() const { return &**this; }
        const_iterator &operator++()
        {
            if (++m_offset == m_list->m_chunks[m_chunk].size()) {
                ++m_chunk;
                m_offset = 0;
            }
            return *this;
        }
        const_iterator operator++(int)
        {
            const const_iterator before = *this;
            ++*this;
            return before;
        }
        bool operator==(const const_iterator &) const = default;

    private:
        friend class ChunkedList;
        const_iterator(const ChunkedList *list, qsizetype chunk)
            : m_list(list)
            , m_chunk(chunk)
        {}

        const ChunkedList *m_list = nullptr;
        qsizetype m_chunk = 0;
        qsizetype m_offset = 0;
    };

    ChunkedList() = default;
    /** Not explicit: such a list is written and read as any other. */
    ChunkedList(const QList<T> &values) { replace(0, 0, values); }
    ChunkedList(std::initializer_list<T> values)
        : ChunkedList(QList<T>(values))
    {}

    qsizetype size() const { return m_size; }
    bool isEmpty() const { return m_size == 0; }

    const_iterator begin() const { return const_iterator(this, 0); }
    const_iterator end() const { return const_iterator(this, m_chunks.size()); }
    const_iterator cbegin() const { return begin(); }
    const_iterator cend() const { return end(); }

    const T &operator[](qsizetype index) const
    {
        const Place place = placeOf(index);
        return m_chunks[place.chunk][place.offset];
    }
    const T &constFirst() const { return m_chunks.constFirst().constFirst(); }
    const T &constLast() const { return m_chunks.constLast().constLast(); }
    bool contains(const T &value) const { return std::find(begin(), end(), value) != end(); }

    /** The values from `at` on, `count` of them, as a plain list. */
    QList<T> sliced(qsizetype at, qsizetype count) const
    {
        QList<T> values;
        values.reserve(count);
        for (Place place = placeOf(at); values.size() < count; place = {place.chunk + 1, 0})
            values += m_chunks[place.chunk].mid(place.offset, count - values.size());
        return values;
    }
    QList<T> toList() const { return sliced(0, m_size); }

    void append(const T &value)
    {
        if (m_chunks.isEmpty() || m_chunks.constLast().size() >= largestChunk)
            m_chunks.append(Chunk());
        m_chunks.last().append(value);
        ++m_size;
    }

    void set(qsizetype index, const T &value)
    {
        const Place place = placeOf(index);
        m_chunks[place.chunk][place.offset] = value;
    }

    void insert(qsizetype index, const T &value)
    {
        if (index == m_size)
            append(value);
        else
            replace(index, 0, {value});
    }

    void remove(qsizetype index) { replace(index, 1, {}); }

    /** Puts `values` in the place of the `count` values from `at` on. */
    void replace(qsizetype at, qsizetype count, const QList<T> &values)
    {
        const Place from = placeOf(at);
        Place to = placeOf(at + count);
        Chunk middle = chunk(from.chunk).first(from.offset) + values;
        middle += chunk(to.chunk).sliced(to.offset);
        // Chunks that have become small join the next one.
        if (middle.size() < smallestChunk && to.chunk + 1 < m_chunks.size())
            middle += m_chunks[++to.chunk];
        const QList<Chunk> chunks = inChunks(middle);
        const qsizetype end = qMin(to.chunk + 1, m_chunks.size());
        const qsizetype same = qMin(end - from.chunk, chunks.size());
        std::copy_n(chunks.cbegin(), same, m_chunks.begin() + from.chunk);
        m_chunks.remove(from.chunk + same, end - from.chunk - same);
        for (qsizetype i = same; i < chunks.size(); ++i)
            m_chunks.insert(from.chunk + i, chunks[i]);
        m_size += values.size() - count;
    }

    /** Becomes equal to `other`, but goes on sharing with its own copies what is the same. */
    void become(const ChunkedList &other)
    {
        const QList<Change> way = changes(*this, other);
        if (way.size() > m_chunks.size()) {
            *this = other; // hardly a chunk would stay the same
            return;
        }
        for (const Change &change : way)
            replace(change.at, change.olderCount, other.sliced(change.at, change.newerCount));
    }

    /** The first index whose value does not fulfil `isBefore`, which holds up to there. */
    template <typename Predicate>
    qsizetype partitionPoint(const Predicate &isBefore) const
    {
        const auto chunk = std::partition_point(
            m_chunks.cbegin(), m_chunks.cend(),
            [&isBefore](const Chunk &each) { return isBefore(each.constLast()); });
        qsizetype index = 0;
        for (auto each = m_chunks.cbegin(); each != chunk; ++each)
            index += each->size();
        if (chunk == m_chunks.cend())
            return index;
        return index +
               (std::partition_point(chunk->cbegin(), chunk->cend(), isBefore) - chunk->cbegin());
    }

    friend bool operator==(const ChunkedList &a, const ChunkedList &b)
    {
        return a.m_size == b.m_size && commonBegin(a, b) == a.m_size;
    }

    /**
     * The way from one list to another. For lists of equal length a change for each run of values
     * that differ; otherwise a single one, of all that is between the values which both begin with
     * and end with. Indices are the same in both lists.
     */
    static QList<Change> changes(const ChunkedList &older, const ChunkedList &newer)
    {
        if (older.m_size == newer.m_size)
            return changedRuns(older, newer);
        const qsizetype begin = commonBegin(older, newer);
        const qsizetype end = commonEnd(older, newer, qMin(older.m_size, newer.m_size) - begin);
        return {{begin, older.m_size - begin - end, newer.m_size - begin - end}};
    }

private:
    using Chunk = QList<T>;

    static constexpr qsizetype largestChunk = 256;
    static constexpr qsizetype smallestChunk = 64;

    struct Place
    {
        qsizetype chunk = 0;
        qsizetype offset = 0;
    };

    /** Behind the last value it is the place behind the last chunk's. */
    Place placeOf(qsizetype index) const
    {
        qsizetype at = 0;
        while (at + 1 < m_chunks.size() && index >= m_chunks[at].size())
            index -= m_chunks[at++].size();
        return {at, index};
    }

    /** The chunk, or an empty one for the place in an empty list. */
    Chunk chunk(qsizetype at) const { return m_chunks.value(at); }

    static QList<Chunk> inChunks(const Chunk &values)
    {
        QList<Chunk> chunks;
        const qsizetype count = (values.size() + largestChunk - 1) / largestChunk;
        for (qsizetype i = 0; i < count; ++i) {
            const qsizetype begin = values.size() * i / count;
            chunks.append(values.sliced(begin, values.size() * (i + 1) / count - begin));
        }
        return chunks;
    }

    /** Two places that go through two lists side by side, by pieces of chunks. */
    struct Pair
    {
        const ChunkedList &a;
        const ChunkedList &b;
        Place inA = {};
        Place inB = {};

        bool isAtEnd() const
        {
            return inA.chunk == a.m_chunks.size() || inB.chunk == b.m_chunks.size();
        }
        const Chunk &chunkOfA() const { return a.m_chunks[inA.chunk]; }
        const Chunk &chunkOfB() const { return b.m_chunks[inB.chunk]; }
        const T *valuesOfA() const { return chunkOfA().constData() + inA.offset; }
        const T *valuesOfB() const { return chunkOfB().constData() + inB.offset; }
        /** So many values lie before the end of either chunk. */
        qsizetype count() const
        {
            return qMin(chunkOfA().size() - inA.offset, chunkOfB().size() - inB.offset);
        }
        /** True if those are the same without a look at them. */
        bool isShared() const { return valuesOfA() == valuesOfB(); }
        void advance(qsizetype count)
        {
            for (auto [place, chunk] :
                 {std::pair(&inA, &chunkOfA()), std::pair(&inB, &chunkOfB())}) {
                place->offset += count;
                if (place->offset == chunk->size())
                    *place = {place->chunk + 1, 0};
            }
        }
    };

    static qsizetype commonBegin(const ChunkedList &a, const ChunkedList &b)
    {
        if (a.m_chunks.isSharedWith(b.m_chunks))
            return a.m_size;
        qsizetype common = 0;
        for (Pair pair{a, b}; !pair.isAtEnd();) {
            const qsizetype count = pair.count();
            if (!pair.isShared()) {
                const T *values = pair.valuesOfA();
                const qsizetype same =
                    std::mismatch(values, values + count, pair.valuesOfB()).first - values;
                if (same < count)
                    return common + same;
            }
            common += count;
            pair.advance(count);
        }
        return common;
    }

    /** How many values both lists end with, but no more than `most`. */
    static qsizetype commonEnd(const ChunkedList &a, const ChunkedList &b, qsizetype most)
    {
        qsizetype common = 0;
        // The place is right behind the values that are looked at next.
        const auto behind = [](const ChunkedList &list, qsizetype chunk) {
            return Place{chunk, chunk >= 0 ? list.m_chunks[chunk].size() : 0};
        };
        Place inA = behind(a, a.m_chunks.size() - 1);
        Place inB = behind(b, b.m_chunks.size() - 1);
        while (common < most) {
            const T *endOfA = a.m_chunks[inA.chunk].constData() + inA.offset;
            const T *endOfB = b.m_chunks[inB.chunk].constData() + inB.offset;
            const qsizetype count = qMin(most - common, qMin(inA.offset, inB.offset));
            for (qsizetype i = 1; endOfA != endOfB && i <= count; ++i) {
                if (!(endOfA[-i] == endOfB[-i]))
                    return common + i - 1;
            }
            common += count;
            if ((inA.offset -= count) == 0)
                inA = behind(a, inA.chunk - 1);
            if ((inB.offset -= count) == 0)
                inB = behind(b, inB.chunk - 1);
        }
        return common;
    }

    /** For lists of equal length. */
    static QList<Change> changedRuns(const ChunkedList &a, const ChunkedList &b)
    {
        QList<Change> runs;
        qsizetype at = 0;
        if (a.m_chunks.isSharedWith(b.m_chunks))
            return runs;
        for (Pair pair{a, b}; !pair.isAtEnd();) {
            const qsizetype count = pair.count();
            for (qsizetype i = 0; !pair.isShared() && i < count; ++i) {
                if (pair.valuesOfA()[i] == pair.valuesOfB()[i])
                    continue;
                if (runs.isEmpty() || runs.constLast().at + runs.constLast().newerCount < at + i)
                    runs.append({at + i, 0, 0});
                ++runs.last().olderCount;
                ++runs.last().newerCount;
            }
            at += count;
            pair.advance(count);
        }
        return runs;
    }

    QList<Chunk> m_chunks; ///< none of them empty
    qsizetype m_size = 0;
};
