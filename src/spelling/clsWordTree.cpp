#include "spelling/clsWordTree.h"

#include "spelling/SpellEngine.h"

#include <QChar>

#include <cstring>

namespace {
inline char32_t upperCharacter(char32_t c)
{
    if (c < 0x80)
        return (c >= 'a' && c <= 'z') ? c - 32 : c;
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

// A code's key as text, letter case folded character by character.
QString foldedCode(QStringView code)
{
    QString folded(code.size(), Qt::Uninitialized);
    char16_t* out = reinterpret_cast<char16_t*>(folded.data());
    qsizetype n = 0;
    for (qsizetype i = 0; i < code.size();) {
        const Spelling::Character ch = Spelling::characterAt(code, i);
        const char32_t f = QChar::toCaseFolded(ch.code);
        if (QChar::requiresSurrogates(f) == (ch.units == 2))
            n += Spelling::putCharacter(out + n, f);
        else
            n += Spelling::putCharacter(out + n, ch.code);
        i += ch.units;
    }
    folded.truncate(n);
    return folded;
}

inline std::uint64_t packUnits(const char16_t* c)
{
    return std::uint64_t(c[0]) | std::uint64_t(c[1]) << 16 | std::uint64_t(c[2]) << 32 | std::uint64_t(c[3]) << 48;
}

// A code of four units with a surrogate in it: a code of one's own, since a word's code with a
// character outside the first plane is five units long (a stray half folds to itself).
[[gnu::noinline]] std::uint64_t packFoldedCharacters(const char16_t* c)
{
    return packUnits(reinterpret_cast<const char16_t*>(foldedCode(QStringView(c, 4)).utf16()));
}

// A code of four units, its letter case folded unit by unit, in 64 bits. For a word's code of
// four units that is folding by character: it holds no surrogate pair, at most a stray half.
inline std::uint64_t packWordCode(const char16_t* c)
{
    const char16_t f[4] = {foldUnit(c[0]), foldUnit(c[1]), foldUnit(c[2]), foldUnit(c[3])};
    return packUnits(f);
}

// Any code of four units, its letter case folded character by character, in 64 bits.
inline std::uint64_t packCode(const char16_t* c)
{
    if (QChar::isSurrogate(c[0]) || QChar::isSurrogate(c[1]) || QChar::isSurrogate(c[2]) || QChar::isSurrogate(c[3]))
        return packFoldedCharacters(c);
    return packWordCode(c);
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

inline bool sameUnits(const char16_t* a, const char16_t* b, qsizetype n)
{
    for (qsizetype i = 0; i < n; ++i)
        if (a[i] != b[i])
            return false;
    return true;
}

inline bool sameText(QStringView a, QStringView b)
{
    // An empty view may have no data pointer at all, which memcmp must not see.
    return a.size() == b.size() && (a.isEmpty() || std::memcmp(a.data(), b.data(), size_t(a.size()) * sizeof(QChar)) == 0);
}

// The small-letter form of a word, character by character, into a buffer that rarely needs
// the heap.
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
        qsizetype i = 0;
        for (; i < n && in[i] < 0x80; ++i)
            out[i] = lowerUnit(in[i]);
        if (i < n)
            Spelling::lowerCharacters(word.sliced(i), out + i);
        view = QStringView(out, n);
    }
};

// Whether the first character (a whole one, also outside the first plane) changes when
// upper-cased.
inline bool foldsCase(QStringView word)
{
    if (word.isEmpty())
        return false;
    const char32_t c = Spelling::characterAt(word, 0).code;
    return c != upperCharacter(c);
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
    accepted.assign(1024, Slot{0, 0, 0, 0});
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

std::uint32_t clsWordTree::bucketForCode(QStringView code, bool create)
{
    if (code.size() == 4)
        return bucketFor(packCode(reinterpret_cast<const char16_t*>(code.data())), create);
    const QString folded = foldedCode(code);
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
    const auto code = modMain::wordCodeUnits(word);
    append(code.size == 4 ? bucketFor(packWordCode(code.units.data()), true) : bucketForCode(code.view(), true), word);
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
    e.bucket = bucket;
    e.foldsCase = foldsCase(word);
    e.ownLowered = 0;
    const char16_t* p = reinterpret_cast<const char16_t*>(word.data());
    arena.insert(arena.end(), p, p + word.size());
    if (e.foldsCase) {
        const Lowered low(word);
        if (!sameText(low.view, word)) {
            e.ownLowered = 1;
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
    if (!loading)
        indexAccepted(index - 1);
}

std::uint32_t clsWordTree::acceptedSlot(std::uint32_t h, std::uint32_t kind, QStringView form) const
{
    const std::uint32_t mask = std::uint32_t(accepted.size() - 1);
    const auto* text = reinterpret_cast<const char16_t*>(form.data());
    std::uint32_t i = h & mask;
    for (; accepted[i].hash; i = (i + 1) & mask) {
        const Slot& slot = accepted[i];
        if (slot.hash == h && slot.kind == kind && slot.length == std::uint32_t(form.size()) &&
            sameUnits(arena.data() + slot.form, text, form.size()))
            return i;
    }
    return i;
}

bool clsWordTree::findAccepted(std::uint32_t bucket, bool folds, QStringView form) const
{
    return accepted[acceptedSlot(formHash(bucket, folds, form), bucket * 2 + (folds ? 1 : 0), form)].hash != 0;
}

std::uint32_t clsWordTree::entryHash(const Entry& e) const
{
    return formHash(e.bucket, e.foldsCase, e.foldsCase ? entryLowered(e) : entryText(e));
}

void clsWordTree::indexAccepted(std::uint32_t entry) { indexAccepted(entry, entryHash(entries[entry])); }

void clsWordTree::indexAccepted(std::uint32_t entry, std::uint32_t h)
{
    const Entry& e = entries[entry];
    const QStringView form = e.foldsCase ? entryLowered(e) : entryText(e);
    const std::uint32_t kind = e.bucket * 2 + e.foldsCase;
    std::uint32_t i = acceptedSlot(h, kind, form);
    if (accepted[i].hash)
        return;  // a repeat: the bucket already answers for it
    if ((acceptedUsed + 1) * 2 > accepted.size()) {
        growAccepted();
        i = acceptedSlot(h, kind, form);
    }
    const auto offset = std::uint32_t(reinterpret_cast<const char16_t*>(form.data()) - arena.data());
    accepted[i] = Slot{h, kind, offset, std::uint32_t(form.size())};
    ++acceptedUsed;
}

void clsWordTree::beginLoad()
{
    loading = true;
    loadFrom = std::uint32_t(entries.size());
}

void clsWordTree::endLoad()
{
    if (!loading)
        return;
    loading = false;
    const auto count = std::uint32_t(entries.size()) - loadFrom;
    while ((acceptedUsed + count) * 2 > accepted.size())
        growAccepted();
    // Sort the new entries by the region of the table they go to (a counting sort on the top
    // bits of their home slot), then insert them region by region.
    const std::uint32_t mask = std::uint32_t(accepted.size() - 1);
    int shift = 0;
    while ((mask >> shift) >= 4096)
        ++shift;
    std::vector<std::uint32_t> hashes(count);
    std::vector<std::uint32_t> starts((mask >> shift) + 2, 0);
    for (std::uint32_t k = 0; k < count; ++k) {
        hashes[k] = entryHash(entries[loadFrom + k]);
        ++starts[((hashes[k] & mask) >> shift) + 1];
    }
    for (size_t r = 1; r < starts.size(); ++r)
        starts[r] += starts[r - 1];
    std::vector<std::uint32_t> order(count);
    for (std::uint32_t k = 0; k < count; ++k)
        order[starts[(hashes[k] & mask) >> shift]++] = k;
    // Within a region, the entries keep their list order, so that of two equal forms the
    // earlier one is the one kept.
    for (std::uint32_t k : order)
        indexAccepted(loadFrom + k, hashes[k]);
}

void clsWordTree::reserveForBytes(qint64 bytes)
{
    // English word lists average about ten bytes a line; a few words need a small-letter copy.
    const auto words = size_t(bytes / 10 + 16);
    arena.reserve(size_t(bytes + bytes / 8 + 16));
    entries.reserve(words + words / 4);
    size_t want = accepted.size();
    while (want < words * 2)
        want *= 2;
    if (want > accepted.size() && acceptedUsed == 0)
        accepted.assign(want, Slot{0, 0, 0, 0});
}

void clsWordTree::growAccepted()
{
    std::vector<Slot, LargeBlockAllocator<Slot>> old(accepted.size() * 2, Slot{0, 0, 0, 0});
    old.swap(accepted);
    const std::uint32_t mask = std::uint32_t(accepted.size() - 1);
    for (const Slot& slot : old) {
        if (!slot.hash)
            continue;
        std::uint32_t i = slot.hash & mask;
        while (accepted[i].hash)
            i = (i + 1) & mask;
        accepted[i] = slot;
    }
}

bool clsWordTree::accepts(QStringView word) const
{
    const auto code = modMain::wordCodeUnits(word);
    auto* self = const_cast<clsWordTree*>(this);
    const std::uint32_t bucket =
        code.size == 4 ? self->bucketFor(packWordCode(code.units.data()), false) : self->bucketForCode(code.view(), false);
    if (!bucket)
        return false;
    // Most words of a text are small-letter words of the list: that probe goes first.
    const Lowered low(word);
    return findAccepted(bucket, true, low.view) || findAccepted(bucket, false, word);
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
