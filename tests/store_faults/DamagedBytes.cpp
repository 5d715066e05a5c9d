#include "tests/store_faults/DamagedBytes.h"

#include <algorithm>

namespace {

constexpr int PageSize = 4096;
constexpr int HeadSize = 100;

class Damage
{
public:
    Damage(QByteArray& bytes, QRandomGenerator& random)
        : m_bytes(bytes)
        , m_random(random)
    {
    }

    void Do()
    {
        for (int i = 1 + m_random.bounded(3); i > 0 && m_bytes.size() > 2 * PageSize; --i)
            DoOne();
    }

private:
    char Byte() { return static_cast<char>(m_random.bounded(256)); }
    int Size() const { return static_cast<int>(m_bytes.size()); }
    int Page() { return m_random.bounded(Size() / PageSize) * PageSize; }

    void DoOne()
    {
        switch (m_random.bounded(9)) {
        case 0: // anywhere
            for (int hit = 1 + m_random.bounded(30); hit > 0; --hit)
                m_bytes[m_random.bounded(Size())] = Byte();
            break;
        case 1: // the head of the file
            m_bytes[16 + m_random.bounded(HeadSize - 16)] = Byte();
            break;
        case 2: { // the head of a page and its list of cells
            const int page = Page();
            for (int hit = 1 + m_random.bounded(4); hit > 0; --hit)
                m_bytes[page + (page == 0 ? HeadSize : 0) + m_random.bounded(24)] = Byte();
            break;
        }
        case 3: // one bit
        {
            const int at = m_random.bounded(Size());
            m_bytes[at] = static_cast<char>(m_bytes.at(at) ^ (1 << m_random.bounded(8)));
            break;
        }
        case 4:
            m_bytes.replace(Page(), PageSize, QByteArray(PageSize, '\0'));
            break;
        case 5: {
            QByteArray noise(PageSize, '\0');
            std::generate(noise.begin(), noise.end(), [this] { return Byte(); });
            m_bytes.replace(Page(), PageSize, noise);
            break;
        }
        case 6: // one page in place of another
            m_bytes.replace(Page(), PageSize, m_bytes.mid(Page(), PageSize));
            break;
        case 7: { // where the cells of a page lie: rows and their types
            const int page = Page();
            for (int hit = 1 + m_random.bounded(6); hit > 0; --hit)
                m_bytes[page + PageSize - 1 - m_random.bounded(200)] = Byte();
            break;
        }
        default:
            m_bytes.append(QByteArray(1 + m_random.bounded(2 * PageSize), Byte()));
            break;
        }
    }

    QByteArray& m_bytes;
    QRandomGenerator& m_random;
};

} // namespace

void DamageBytes(QByteArray& bytes, QRandomGenerator& random)
{
    Damage(bytes, random).Do();
}

void CutOff(QByteArray& bytes, QRandomGenerator& random)
{
    // Pages that are missing whole are harder to notice than others.
    const int size = random.bounded(static_cast<int>(bytes.size()));
    bytes.truncate(random.bounded(2) == 0 ? size : size / PageSize * PageSize);
}
