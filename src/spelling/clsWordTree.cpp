#include "spelling/clsWordTree.h"

#include "spelling/SpellEngine.h"

#include <QChar>

#include <cstring>

namespace {
inline char16_t upperUnit(char16_t c)
{
    if (c < 0x80)
        return (c >= 'a' && c <= 'z') ? char16_t(c - 32) : c;
    return QChar::toUpper(c);
}

inline char16_t lowerUnit(char16_t c)
{
    if (c < 0x80)
        return (c >= 'A' && c <= 'Z') ? char16_t(c + 32) : c;
    return QChar::toLower(c);
}

inline char16_t foldUnit(char16_t c)
{
    if (c < 0x80)
        return lowerUnit(c);
    return QChar::toCaseFolded(c);
}

inline std::uint64_t packCode(const char16_t* c)
{
    return std::uint64_t(foldUnit(c[0])) | std::uint64_t(foldUnit(c[1])) << 16 |
           std::uint64_t(foldUnit(c[2])) << 32 | std::uint64_t(foldUnit(c[3])) << 48;
}

inline std::uint32_t mixKey(std::uint64_t k)
{
    k ^= k >> 33;
    k *= 0xff51afd7ed558ccdULL;
    k ^= k >> 33;
    return static_cast<std::uint32_t>(k);
}

inline std::uint32_t formHash(std::uint32_t bucket, bool foldsCase, QStringView form)
{
    std::uint64_t h = 0xcbf29ce484222325ULL ^ (std::uint64_t(bucket) << 1 | (foldsCase ? 1 : 0));
    const char16_t* p = reinterpret_cast<const char16_t*>(form.data());
    for (qsizetype i = 0; i < form.size(); ++i)
        h = (h ^ p[i]) * 0x100000001b3ULL;
    return mixKey(h) | 1;  // never 0
}

inline bool sameText(QStringView a, QStringView b)
{
    // An empty view may have no data pointer at all, which memcmp must not see.
    return a.size() == b.size() && (a.isEmpty() || std::memcmp(a.data(), b.data(), size_t(a.size()) * sizeof(QChar)) == 0);
}

// The small-letter form of a word, unit by unit, into a buffer that rarely needs the heap.
struct Lowered {
    char16_t local[64];
    std::u16string heap;
    QStringView view;
    explicit Lowered(QStringView word)
    {
        const qsizetype n = word.size();
        char16_t* out = local;
        if (n > 64) {
            heap.resize(size_t(n));
            out = heap.data();
        }
        const char16_t* in = reinterpret_cast<const char16_t*>(word.data());
        for (qsizetype i = 0; i < n; ++i)
            out[i] = lowerUnit(in[i]);
        view = QStringView(out, n);
    }
};

inline bool foldsCase(QStringView word)
{
    if (word.isEmpty())
        return false;
    const char16_t c = word.front().unicode();
    return c != upperUnit(c);
}
}

QStringList WordBucket::toList() const
{
    QStringList list;
    list.reserve(size);
    forEach([&](QStringView w) {
        list.append(w.toString());
        return true;
    });
    return list;
}

clsWordTree::clsWordTree()
{
    codeKeys.assign(1024, 0);
    codeSlots.assign(1024, 0);
    accepted.assign(1024, 0);
    acceptedHash.assign(1024, 0);
}

std::uint32_t clsWordTree::bucketFor(std::uint64_t key, bool create)
{
    std::uint32_t mask = std::uint32_t(codeSlots.size() - 1);
    for (std::uint32_t i = mixKey(key) & mask;; i = (i + 1) & mask) {
        if (codeSlots[i] == 0) {
            if (!create)
                return 0;
            if ((codeUsed + 1) * 2 > codeSlots.size()) {
                // Grow and insert again.
                std::vector<std::uint64_t> oldKeys(codeSlots.size() * 2, 0);
                std::vector<std::uint32_t> oldSlots(codeSlots.size() * 2, 0);
                oldKeys.swap(codeKeys);
                oldSlots.swap(codeSlots);
                mask = std::uint32_t(codeSlots.size() - 1);
                for (size_t j = 0; j < oldSlots.size(); ++j) {
                    if (!oldSlots[j])
                        continue;
                    std::uint32_t s = mixKey(oldKeys[j]) & mask;
                    while (codeSlots[s])
                        s = (s + 1) & mask;
                    codeSlots[s] = oldSlots[j];
                    codeKeys[s] = oldKeys[j];
                }
                return bucketFor(key, true);
            }
            buckets.emplace_back();
            buckets.back().tree = this;
            codeSlots[i] = std::uint32_t(buckets.size());
            codeKeys[i] = key;
            ++codeUsed;
            return codeSlots[i];
        }
        if (codeKeys[i] == key)
            return codeSlots[i];
    }
}

std::uint32_t clsWordTree::bucketForCode(const QString& code, bool create)
{
    if (code.size() == 4)
        return bucketFor(packCode(reinterpret_cast<const char16_t*>(code.utf16())), create);
    QString folded = code;
    for (QChar& c : folded)
        c = QChar(foldUnit(c.unicode()));
    if (const auto it = otherCodes.constFind(folded); it != otherCodes.cend())
        return it.value();
    if (!create)
        return 0;
    buckets.emplace_back();
    buckets.back().tree = this;
    const auto index = std::uint32_t(buckets.size());
    otherCodes.insert(folded, index);
    return index;
}

const WordBucket* clsWordTree::bucketAt(std::uint32_t index) const
{
    return index ? &buckets[index - 1] : nullptr;
}

void clsWordTree::Add(const QString& code, const QString& word)
{
    append(bucketForCode(code, true), word);
}

void clsWordTree::addWord(QStringView word)
{
    const auto units = modMain::wordCodeUnits(word);
    append(bucketFor(packCode(units.data()), true), word);
}

const WordBucket* clsWordTree::GetCodeNode(const QString& code) const
{
    return bucketAt(const_cast<clsWordTree*>(this)->bucketForCode(code, false));
}

void clsWordTree::append(std::uint32_t bucket, QStringView word)
{
    Entry e{};
    e.offset = std::uint32_t(arena.size());
    e.length = std::uint32_t(word.size());
    e.lowered = e.offset;
    e.bucket = bucket;
    e.foldsCase = foldsCase(word);
    const char16_t* p = reinterpret_cast<const char16_t*>(word.data());
    arena.insert(arena.end(), p, p + word.size());
    if (e.foldsCase) {
        const Lowered low(word);
        if (!sameText(low.view, word)) {
            e.lowered = std::uint32_t(arena.size());
            const char16_t* q = reinterpret_cast<const char16_t*>(low.view.data());
            arena.insert(arena.end(), q, q + low.view.size());
        }
    }
    entries.push_back(e);
    const auto index = std::uint32_t(entries.size());
    WordBucket& b = buckets[bucket - 1];
    if (b.tail)
        entries[b.tail - 1].next = index;
    else
        b.head = index;
    b.tail = index;
    ++b.size;
    indexAccepted(index - 1);
}

bool clsWordTree::findAccepted(std::uint32_t bucket, bool folds, QStringView form) const
{
    const std::uint32_t h = formHash(bucket, folds, form);
    const std::uint32_t mask = std::uint32_t(accepted.size() - 1);
    for (std::uint32_t i = h & mask; accepted[i]; i = (i + 1) & mask) {
        if (acceptedHash[i] != h)
            continue;
        const Entry& e = entries[accepted[i] - 1];
        if (e.bucket == bucket && e.foldsCase == folds && sameText(folds ? entryLowered(e) : entryText(e), form))
            return true;
    }
    return false;
}

void clsWordTree::indexAccepted(std::uint32_t entry)
{
    const Entry& e = entries[entry];
    const QStringView form = e.foldsCase ? entryLowered(e) : entryText(e);
    if (findAccepted(e.bucket, e.foldsCase, form))
        return;  // a repeat: the bucket already answers for it
    if ((acceptedUsed + 1) * 2 > accepted.size())
        growAccepted();
    const std::uint32_t h = formHash(e.bucket, e.foldsCase, form);
    const std::uint32_t mask = std::uint32_t(accepted.size() - 1);
    std::uint32_t i = h & mask;
    while (accepted[i])
        i = (i + 1) & mask;
    accepted[i] = entry + 1;
    acceptedHash[i] = h;
    ++acceptedUsed;
}

void clsWordTree::growAccepted()
{
    std::vector<std::uint32_t> oldSlots(accepted.size() * 2, 0);
    std::vector<std::uint32_t> oldHash(accepted.size() * 2, 0);
    oldSlots.swap(accepted);
    oldHash.swap(acceptedHash);
    const std::uint32_t mask = std::uint32_t(accepted.size() - 1);
    for (size_t j = 0; j < oldSlots.size(); ++j) {
        if (!oldSlots[j])
            continue;
        std::uint32_t i = oldHash[j] & mask;
        while (accepted[i])
            i = (i + 1) & mask;
        accepted[i] = oldSlots[j];
        acceptedHash[i] = oldHash[j];
    }
}

bool clsWordTree::accepts(QStringView word) const
{
    const auto units = modMain::wordCodeUnits(word);
    const std::uint32_t bucket = const_cast<clsWordTree*>(this)->bucketFor(packCode(units.data()), false);
    if (!bucket)
        return false;
    if (findAccepted(bucket, false, word))
        return true;
    const Lowered low(word);
    return findAccepted(bucket, true, low.view);
}

bool clsWordTree::holdsExactly(const QString& code, QStringView word) const
{
    const WordBucket* b = GetCodeNode(code);
    bool found = false;
    if (b)
        b->forEach([&](QStringView entry) {
            found = sameText(entry, word);
            return !found;
        });
    return found;
}
