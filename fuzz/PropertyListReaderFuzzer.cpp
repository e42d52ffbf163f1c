#include "fuzz/Home.h"
#include "platform/lists/PropertyListReader.h"

#include <string>
#include <vector>

namespace {

/// Checks that the pieces come in an order that makes a list. Skips one key of four.
class Checker : public PropertyListHandler
{
public:
    bool key(std::string_view) override
    {
        promise(!m_open.empty() && m_open.back() && !m_hasKey, "keys come in dictionaries alone");
        m_hasKey = ++m_keys % 4 != 0;
        return m_hasKey;
    }
    void beginDictionary() override { begin(true); }
    void endDictionary() override { end(true); }
    void beginArray() override { begin(false); }
    void endArray() override { end(false); }
    void scalar(const PropertyListScalar &value) override
    {
        takeValue();
        // Touches every byte.
        if (const auto *text = std::get_if<std::string_view>(&value))
            m_text = *text;
        if (const auto *date = std::get_if<QDateTime>(&value))
            promise(date->isValid(), "a date is one");
    }

    bool isComplete() const { return m_open.empty() && m_roots == 1; }

private:
    void takeValue()
    {
        if (m_open.empty())
            promise(++m_roots == 1, "there is one root");
        else
            promise(m_open.back() == m_hasKey, "values of dictionaries alone have a key");
        m_hasKey = false;
    }
    void begin(bool isDictionary)
    {
        takeValue();
        m_open.push_back(isDictionary);
    }
    void end(bool isDictionary)
    {
        promise(!m_open.empty() && m_open.back() == isDictionary && !m_hasKey,
                "what ends was begun");
        m_open.pop_back();
    }

    std::string m_text;
    std::vector<bool> m_open; // whether it is a dictionary
    bool m_hasKey = false;
    int m_keys = 0;
    int m_roots = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString path = Home::instance().write(QStringLiteral("list.plist"), bytesOf(data, size));
    Checker checker;
    const FileResult<> done = readPropertyList(path, 1 << 20, checker);
    promise(done || !done.error().text.isEmpty(), "an error says what is wrong");
    promise(!done || checker.isComplete(), "a list that is read is complete");
    return 0;
}
