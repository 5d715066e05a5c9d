// Reads texts of schemes that are made up. What is taken over has to come back unchanged.

#include "tests/fuzz/Fuzzer.h"

#include "tests/AlarmSchemeData/RandomSchemes.h"
#include "tests/scheme_exchange/SchemeTexts.h"

int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t iSize)
{
    AlarmInfoMap map;
    const QStringList problems =
        SchemeTexts::Read(QByteArray(reinterpret_cast<const char*>(pData), static_cast<int>(iSize)), map);
    if (!problems.isEmpty()) {
        if (!map.isEmpty())
            qFatal("a text with problems gives schemes");
        return 0;
    }
    const QByteArray text = SchemeTexts::Write(map);
    AlarmInfoMap again;
    if (!SchemeTexts::Read(text, again).isEmpty() || again != map)
        qFatal("what was taken over is not what is written");
    if (SchemeTexts::Write(again) != text)
        qFatal("the same schemes give two texts");
    return 0;
}

QList<QByteArray> FuzzSeeds()
{
    QList<QByteArray> seeds{
        SchemeTexts::File(""),
        SchemeTexts::Scheme(""),
        SchemeTexts::Scheme("\"split\":{\"SplitRow\":2,\"SplitCloum\":2,\"SplitCount\":4,"
                            "\"cells\":[{\"windowID\":1,\"X1\":3}]},\"videoLinks\":[{\"WindowID\":3}],"
                            "\"alarmOut\":[{\"strLinkAlarmID\":\"\\u95e8\"}],\"doors\":[{\"id\":\"-5\"}],"
                            "\"defenceTime\":[[{}],[],[],[],[],[],[]]"),
        "\xEF\xBB\xBF{\"format\":\"alarm-schemes\"}",
        QByteArray("\xFF\xFE{\0", 4),
        SchemeTexts::Scheme("\"x\":[[[[{}]]]],\"bOpen\":1e99,\"bOpen\":\"\\uD83D\\uDEAA\""),
    };
    for (quint32 seed = 1; seed <= 6; ++seed)
        seeds.append(SchemeTexts::Write(RandomSchemes(seed).Map()));
    return seeds;
}
