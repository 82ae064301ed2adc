#pragma once
#include "spelling/LargeBlocks.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <cstdint>
#include <deque>
#include <vector>

class clsWordTree;

// One bucket of the tree: the words of one code, duplicates kept, in the order they were added.
class WordBucket {
public:
    int count() const { return size; }
    QStringList toList() const;
    // Calls f(word) for each word in order until f answers false.
    template <class F>
    void forEach(F f) const;

private:
    friend class clsWordTree;
    const clsWordTree* tree = nullptr;
    std::uint32_t head = 0;  // entry index + 1; 0 = none
    std::uint32_t tail = 0;
    int size = 0;
};

// The word list in memory: a four-character code leads to a bucket of words. Code keys ignore
// letter case. All words live in one character arena and one entry table, so a list of a
// hundred thousand words costs a handful of allocations, and the word test is one hash probe
// per form instead of a walk along the bucket (the walk's answer is kept exactly: see accepts).
class clsWordTree {
public:
    clsWordTree();

    // Creates the code's bucket when there is none, then appends the word at its end.
    void Add(const QString& code, const QString& word);
    // The code's bucket or null. Valid until the tree is destroyed.
    const WordBucket* GetCodeNode(const QString& code) const;
    // The number of buckets (not of words).
    int Count() const { return static_cast<int>(buckets.size()); }

    // The word test's bucket walk, answered from an index: true when the bucket of the word's
    // code holds an entry that begins with a small letter (or anything else that changes when
    // upper-cased) and equals the word ignoring case, or any other entry equal to the word
    // exactly. The word must not be empty.
    bool accepts(QStringView word) const;
    // Whether the bucket of code holds the word exactly.
    bool holdsExactly(const QString& code, QStringView word) const;

    // Fast path of Add for a word whose code is computed here (the list loader).
    void addWord(QStringView word);

    int wordCount() const { return static_cast<int>(entries.size()); }
    // Room for a list file of this many bytes, so that loading it moves nothing.
    void reserveForBytes(qint64 bytes);
    // A list load: the word test's index is built once at the end, in the order of its table,
    // rather than word by word at random places. Nothing may ask the tree in between.
    void beginLoad();
    void endLoad();

private:
    friend class WordBucket;
    struct Entry {
        std::uint32_t offset;  // in arena; a small-letter copy, when one is kept, follows the word
        std::uint32_t length;
        std::uint32_t next;    // next entry of the bucket + 1; 0 = last
        std::uint32_t bucket : 30;
        std::uint32_t foldsCase : 1;  // the first character changes when upper-cased
        std::uint32_t ownLowered : 1;  // the small-letter form is a copy of its own
    };
    // A slot holds what the test compares, so that a probe reads the slot and the text only.
    struct Slot {
        std::uint32_t hash;  // never 0 in a used slot
        std::uint32_t kind;  // bucket * 2 + whether the entry folds case
        std::uint32_t form;  // offset of the compared form in arena
        std::uint32_t length;
    };

    std::uint32_t bucketFor(std::uint64_t key, bool create);
    std::uint32_t bucketForCode(QStringView code, bool create);
    const WordBucket* bucketAt(std::uint32_t index) const;
    void append(std::uint32_t bucket, QStringView word);
    QStringView entryText(const Entry& e) const { return QStringView(arena.data() + e.offset, e.length); }
    QStringView entryLowered(const Entry& e) const
    {
        return QStringView(arena.data() + e.offset + (e.ownLowered ? e.length : 0), e.length);
    }

    // The index of accepted forms: (bucket, kind, form) of each entry, without repeats.
    bool findAccepted(std::uint32_t bucket, bool foldsCase, QStringView form) const;
    // The slot of (bucket, kind, form), or of the empty place where it would go.
    std::uint32_t acceptedSlot(std::uint32_t hash, std::uint32_t kind, QStringView form) const;
    void indexAccepted(std::uint32_t entry);
    void indexAccepted(std::uint32_t entry, std::uint32_t hash);
    std::uint32_t entryHash(const Entry& e) const;
    void growAccepted();

    std::vector<char16_t, LargeBlockAllocator<char16_t>> arena;
    std::vector<Entry, LargeBlockAllocator<Entry>> entries;
    std::deque<WordBucket> buckets;  // a deque, so that GetCodeNode's answers stay valid

    // Four-character codes, folded, packed in 64 bits -> bucket index + 1 (open addressing).
    std::vector<std::uint64_t> codeKeys;
    std::vector<std::uint32_t> codeSlots;
    std::uint32_t codeUsed = 0;
    // Codes of any other length: a word's code whose first character lies outside the first
    // plane (five units), and codes of one's own given to Add.
    QHash<QString, std::uint32_t> otherCodes;

    std::vector<Slot, LargeBlockAllocator<Slot>> accepted;
    std::uint32_t acceptedUsed = 0;
    bool loading = false;
    std::uint32_t loadFrom = 0;
};

template <class F>
void WordBucket::forEach(F f) const
{
    for (std::uint32_t i = head; i != 0;) {
        const auto& e = tree->entries[i - 1];
        if (!f(tree->entryText(e)))
            return;
        i = e.next;
    }
}
