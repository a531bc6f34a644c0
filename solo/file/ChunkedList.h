#pragma once

#include <QList>
#include <QVarLengthArray>

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <memory>

/**
 * A list of which many slightly different states can be stored cheaply. It consists of chunks, the
 * leaves of a balanced tree, and copies share all equal parts. A change only copies the path to its
 * chunk, and shared parts of two lists are equal without comparing them.
 */
template <typename T>
class ChunkedList
{
public:
    /**
     * Values of an older list from the index `at` on, and the ones that replace them in a newer
     * list.
     */
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
        reference operator*() const { return *m_value; }
        pointer operator->() const { return m_value; }
        const_iterator &operator++()
        {
            ++m_index;
            if (++m_value == m_chunkEnd)
                enterChunk();
            return *this;
        }
        const_iterator operator++(int)
        {
            const const_iterator before = *this;
            ++*this;
            return before;
        }
        bool operator==(const const_iterator &other) const { return m_index == other.m_index; }

    private:
        friend class ChunkedList;
        const_iterator(const ChunkedList *list, qsizetype index)
            : m_list(list)
            , m_index(index)
        {
            enterChunk();
        }
        void enterChunk()
        {
            if (m_index == m_list->size())
                return;
            const Place place = m_list->placeOf(m_index);
            m_value = place.values->constData() + place.offset;
            m_chunkEnd = place.values->constData() + place.values->size();
        }

        const ChunkedList *m_list = nullptr;
        qsizetype m_index = 0;
        const T *m_value = nullptr;
        const T *m_chunkEnd = nullptr;
    };

    ChunkedList() = default;
    /** Not explicit: a plain list converts implicitly. */
    ChunkedList(const QList<T> &values)
        : m_root(build(values))
    {}
    ChunkedList(std::initializer_list<T> values)
        : ChunkedList(QList<T>(values))
    {}

    qsizetype size() const { return sizeOf(m_root); }
    bool isEmpty() const { return !m_root; }

    const_iterator begin() const { return const_iterator(this, 0); }
    const_iterator end() const { return const_iterator(this, size()); }
    const_iterator cbegin() const { return begin(); }
    const_iterator cend() const { return end(); }

    const T &operator[](qsizetype index) const
    {
        const Place place = placeOf(index);
        return (*place.values)[place.offset];
    }
    const T &constFirst() const { return (*this)[0]; }
    const T &constLast() const { return lastOf(*m_root); }
    bool contains(const T &value) const { return std::find(begin(), end(), value) != end(); }

    /** `count` values from `at` on, as a plain list. */
    QList<T> sliced(qsizetype at, qsizetype count) const
    {
        QList<T> values;
        values.reserve(count);
        while (values.size() < count) {
            const Place place = placeOf(at + values.size());
            values += place.values->mid(place.offset, count - values.size());
        }
        return values;
    }
    QList<T> toList() const { return sliced(0, size()); }

    void append(const T &value)
    {
        const Node *last = m_root.get();
        while (last && !last->isLeaf())
            last = last->right.get();
        if (!last || last->size == largestChunk) {
            m_root = join(m_root, leaf({value}));
            return;
        }
        Tree *tree = &m_root;
        for (; ++own(*tree).size, !(*tree)->isLeaf(); tree = &(*tree)->right) {
        }
        (*tree)->values.append(value);
    }

    void set(qsizetype index, const T &value)
    {
        Tree *tree = &m_root;
        while (!own(*tree).isLeaf()) {
            const qsizetype left = (*tree)->left->size;
            tree = index < left ? &(*tree)->left : &(*tree)->right;
            index -= index < left ? 0 : left;
        }
        (*tree)->values[index] = value;
    }

    void insert(qsizetype index, const T &value)
    {
        if (index == size())
            append(value);
        else
            replace(index, 0, {value});
    }

    void remove(qsizetype index) { replace(index, 1, {}); }

    /** Replaces `count` values from `at` on with `values`. */
    void replace(qsizetype at, qsizetype count, const QList<T> &values)
    {
        m_root = replaced(m_root, at, count, values);
    }

    /** Becomes equal to `other`, but keeps sharing equal parts with its own copies. */
    void become(const ChunkedList &other)
    {
        const QList<Change> way = changes(*this, other);
        if (way.size() * largestChunk > size()) {
            *this = other; // hardly any chunk would stay the same
            return;
        }
        for (const Change &change : way)
            replace(change.at, change.olderCount, other.sliced(change.at, change.newerCount));
    }

    /**
     * The first index whose value does not satisfy `isBefore`; all values before it must satisfy
     * it.
     */
    template <typename Predicate>
    qsizetype partitionPoint(const Predicate &isBefore) const
    {
        if (!m_root)
            return 0;
        qsizetype index = 0;
        const Node *node = m_root.get();
        while (!node->isLeaf()) {
            const bool isInRight = isBefore(lastOf(*node->left));
            index += isInRight ? node->left->size : 0;
            node = (isInRight ? node->right : node->left).get();
        }
        const QList<T> &values = node->values;
        return index +
               (std::partition_point(values.cbegin(), values.cend(), isBefore) - values.cbegin());
    }

    friend bool operator==(const ChunkedList &a, const ChunkedList &b)
    {
        return a.size() == b.size() && common<Direction::Forward>(a, b, a.size()) == a.size();
    }

    /**
     * The changes from one list to another. For lists of equal length, one change for each run of
     * different values; otherwise a single one, of everything between the common beginning and the
     * common end. `at` is the same index in both lists.
     */
    static QList<Change> changes(const ChunkedList &older, const ChunkedList &newer)
    {
        if (older.size() == newer.size())
            return changedRuns(older, newer);
        const qsizetype most = qMin(older.size(), newer.size());
        const qsizetype begin = common<Direction::Forward>(older, newer, most);
        const qsizetype end = common<Direction::Backward>(older, newer, most - begin);
        return {{begin, older.size() - begin - end, newer.size() - begin - end}};
    }

private:
    struct Node;
    using Tree = std::shared_ptr<Node>;

    static constexpr qsizetype largestChunk = 64;

    /** A chunk of values, or two trees whose heights differ by at most one. */
    struct Node
    {
        Tree left;
        Tree right;
        QList<T> values;
        qsizetype size = 0;
        int height = 0;
        bool isLeaf() const { return height == 0; }
    };

    /** A value within its chunk. */
    struct Place
    {
        const QList<T> *values = nullptr;
        qsizetype offset = 0;
    };

    static qsizetype sizeOf(const Tree &tree) { return tree ? tree->size : 0; }

    static Tree leaf(const QList<T> &values)
    {
        return std::make_shared<Node>(Node{nullptr, nullptr, values, values.size(), 0});
    }

    /** A tree of two whose heights differ by at most one; small chunks are merged. */
    static Tree inner(const Tree &left, const Tree &right)
    {
        const qsizetype size = left->size + right->size;
        if (left->isLeaf() && right->isLeaf() && size <= largestChunk)
            return leaf(left->values + right->values);
        return std::make_shared<Node>(
            Node{left, right, {}, size, qMax(left->height, right->height) + 1});
    }

    /** A tree of two whose heights differ by at most two. */
    static Tree balanced(const Tree &left, const Tree &right)
    {
        if (left->height > right->height + 1) {
            const Tree &middle = left->right;
            return left->left->height >= middle->height
                       ? inner(left->left, inner(middle, right))
                       : inner(inner(left->left, middle->left), inner(middle->right, right));
        }
        if (right->height > left->height + 1) {
            const Tree &middle = right->left;
            return right->right->height >= middle->height
                       ? inner(inner(left, middle), right->right)
                       : inner(inner(left, middle->left), inner(middle->right, right->right));
        }
        return inner(left, right);
    }

    /** A tree of any two trees. */
    static Tree join(const Tree &left, const Tree &right)
    {
        if (!left || !right)
            return left ? left : right;
        if (left->height > right->height + 1)
            return balanced(left->left, join(left->right, right));
        if (right->height > left->height + 1)
            return balanced(join(left, right->left), right->right);
        return inner(left, right);
    }

    static Tree build(const QList<T> &values)
    {
        if (values.isEmpty())
            return nullptr;
        const qsizetype chunks = (values.size() + largestChunk - 1) / largestChunk;
        if (chunks == 1)
            return leaf(values);
        const qsizetype half = values.size() * (chunks / 2) / chunks;
        return join(build(values.first(half)), build(values.sliced(half)));
    }

    static Tree replaced(const Tree &tree, qsizetype at, qsizetype count, const QList<T> &values)
    {
        if (count == sizeOf(tree))
            return build(values);
        if (count == 0 && values.isEmpty())
            return tree;
        if (tree->isLeaf())
            return build(tree->values.first(at) + values + tree->values.sliced(at + count));
        const qsizetype left = tree->left->size;
        if (at + count <= left)
            return join(replaced(tree->left, at, count, values), tree->right);
        if (at >= left)
            return join(tree->left, replaced(tree->right, at - left, count, values));
        return join(replaced(tree->left, at, left - at, values),
                    replaced(tree->right, 0, at + count - left, {}));
    }

    /** The tree's node for writing: detached if it is shared. */
    static Node &own(Tree &tree)
    {
        if (tree.use_count() > 1)
            tree = std::make_shared<Node>(*tree);
        return *tree;
    }

    static const T &lastOf(const Node &tree)
    {
        const Node *node = &tree;
        while (!node->isLeaf())
            node = node->right.get();
        return node->values.constLast();
    }

    Place placeOf(qsizetype index) const
    {
        const Node *node = m_root.get();
        while (!node->isLeaf()) {
            const qsizetype left = node->left->size;
            node = (index < left ? node->left : node->right).get();
            index -= index < left ? 0 : left;
        }
        return {&node->values, index};
    }

    enum class Direction { Forward, Backward };

    /**
     * Walks through two lists in parallel, in the largest trees and chunks that can be compared.
     */
    template <Direction direction>
    class Walk
    {
    public:
        Walk(const ChunkedList &a, const ChunkedList &b)
        {
            if (a.m_root)
                m_a.nodes.append(a.m_root.get());
            if (b.m_root)
                m_b.nodes.append(b.m_root.get());
        }

        /** Moves to the next values; false at the end of either list. */
        bool next()
        {
            m_a.advance(m_count);
            m_b.advance(m_count);
            while (!m_a.nodes.isEmpty() && !m_b.nodes.isEmpty()) {
                const Node *a = m_a.nodes.last();
                const Node *b = m_b.nodes.last();
                m_isShared = a == b && m_a.done == m_b.done;
                m_count = qMin(a->size - m_a.done, b->size - m_b.done);
                if (m_isShared || (a->isLeaf() && b->isLeaf()))
                    return true;
                if (b->isLeaf() || (!a->isLeaf() && a->size >= b->size))
                    m_a.descend();
                else
                    m_b.descend();
            }
            return false;
        }

        /** True if the values are shared, and so equal. */
        bool isShared() const { return m_isShared; }
        /** The number of values here in both lists. */
        qsizetype count() const { return m_count; }
        /** Compares the values at index `i`, counted from their start in this direction. */
        bool isEqual(qsizetype i) const { return m_a.value(i) == m_b.value(i); }

    private:
        struct Side
        {
            QVarLengthArray<const Node *, 64> nodes; ///< everything left, the next one last
            qsizetype done = 0;                      ///< values of the next one that are done

            void descend()
            {
                const Node *node = nodes.last();
                nodes.removeLast();
                constexpr bool isForward = direction == Direction::Forward;
                nodes.append((isForward ? node->right : node->left).get());
                nodes.append((isForward ? node->left : node->right).get());
            }
            void advance(qsizetype count)
            {
                done += count;
                if (!nodes.isEmpty() && done == nodes.last()->size) {
                    nodes.removeLast();
                    done = 0;
                }
            }
            const T &value(qsizetype i) const
            {
                const QList<T> &values = nodes.last()->values;
                return direction == Direction::Forward ? values[done + i]
                                                       : values[values.size() - 1 - done - i];
            }
        };

        Side m_a;
        Side m_b;
        qsizetype m_count = 0;
        bool m_isShared = false;
    };

    /** The length of the common beginning or end of both lists, at most `most`. */
    template <Direction direction>
    static qsizetype common(const ChunkedList &a, const ChunkedList &b, qsizetype most)
    {
        qsizetype count = 0;
        for (Walk<direction> walk(a, b); count < most && walk.next(); count += walk.count()) {
            for (qsizetype i = 0; !walk.isShared() && i < walk.count(); ++i) {
                if (!walk.isEqual(i))
                    return qMin(count + i, most);
            }
        }
        return qMin(count, most);
    }

    /** For lists of equal length. */
    static QList<Change> changedRuns(const ChunkedList &a, const ChunkedList &b)
    {
        QList<Change> runs;
        qsizetype at = 0;
        for (Walk<Direction::Forward> walk(a, b); walk.next(); at += walk.count()) {
            for (qsizetype i = 0; !walk.isShared() && i < walk.count(); ++i) {
                if (walk.isEqual(i))
                    continue;
                if (runs.isEmpty() || runs.constLast().at + runs.constLast().newerCount < at + i)
                    runs.append({at + i, 0, 0});
                ++runs.last().olderCount;
                ++runs.last().newerCount;
            }
        }
        return runs;
    }

    Tree m_root; ///< null if the list is empty
};
