#include "online/signature.h"

#include <gtest/gtest.h>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Vector {
    HmacAlgorithm algorithm;
    qsizetype digestLength; // bytes
    const char* hiThere;    // key: 20 times 0x0b, 16 times for MD5
    const char* jefe;
    const char* truncated; // key: 20 times 0x0c, 16 times for MD5; how the digest begins
    const char* longKey;   // key: 200 times "k"; by another implementation
    const char* nothing;   // empty key, empty text; by another implementation
};

// RFC 2202 for MD5 and SHA-1, RFC 4231 for the others; the vectors whose bytes are texts.
const Vector vectors[] = {
    {HmacAlgorithm::MD5, 16, "9294727a3638bb1c13f48ef8158bfc9d", "750c783e6ab0b503eaa86e310a5db738",
     "56461ef2342edc00f9bab995690efd4c", "e7697cb91540d637f246e71f983a1f64",
     "74e6f7298a9c2d168935f58c001bad88"},
    {HmacAlgorithm::SHA1, 20, "b617318655057264e28bc0b6fb378c8ef146be00",
     "effcdf6ae5eb2fa2d27416d5f184df9c259a7c79", "4c1a03424b55e07fe7f27be1d58bb9324a9a5a04",
     "edd6e4fe7d8b2d3deef87e5fe232b08c949a10e3", "fbdb1d1b18aa6c08324b7d64b71fb76370690e1d"},
    {HmacAlgorithm::SHA224, 28, "896fb1128abbdf196832107cd49df33f47b4b1169912ba4f53684b22",
     "a30e01098bc6dbbf45690f3a7e9e6d0f8bbea2a39e6148008fd05e44", "0e2aea68a90c8d37c988bcdb9fca6fa8",
     "4ea8837a819a475c5aa310baa94d232bae9d4531bc0c026b25625f66",
     "5ce14f72894662213e2748d2a6ba234b74263910cedde2f5a9271524"},
    {HmacAlgorithm::SHA256, 32, "b0344c61d8db38535ca8afceaf0bf12b881dc200c9833da726e9376c2e32cff7",
     "5bdcc146bf60754e6a042426089575c75a003f089d2739839dec58b964ec3843", "a3b6167473100ee06e0c796c2955552b",
     "1ec54b93900bf6af2351424fe5cab449aecfded6470f237e702ed00646e0a01d",
     "b613679a0814d9ec772f95d778c35fc5ff1697c493715653c6c712144292c5ad"},
    {HmacAlgorithm::SHA384, 48,
     "afd03944d84895626b0825f4ab46907f15f9dadbe4101ec682aa034c7cebc59cfaea9ea9076ede7f4af152e8b2fa9cb6",
     "af45d2e376484031617f78d2b58a6b1b9c7ef464f5a01b47e42ec3736322445e8e2240ca5e69e2c78b3239ecfab21649",
     "3abf34c3503b2a23a46efc619baef897",
     "f75da606a099747eee4de73f4fc50a4218441a223aee0229c736a7e976f536f435b6d586e96ebd5886e4f6fe195b4d1c",
     "6c1f2ee938fad2e24bd91298474382ca218c75db3d83e114b3d4367776d14d3551289e75e8209cd4b792302840234adc"},
    {HmacAlgorithm::SHA512, 64,
     "87aa7cdea5ef619d4ff0b4241a1d6cb02379f4e2ce4ec2787ad0b30545e17cdedaa833b7d6b8a702038b274eaea3f4e4be9d914"
     "ee"
     "b61f1702e696c203a126854",
     "164b7a7bfcf819e2e395fbe73b56e0a387bd64222e831fd610270cd7ea2505549758bf75c05a994a6d034f65f8f0e6fdcaeab1a"
     "34"
     "d4a6b4b636e070a38bce737",
     "415fad6271580a531d4179bc891d87a6",
     "98e6d8d2edc887335024c0f96407b8b7458433e3d7c56a0b382b8c717a705a519c6b9397418807867f1b821c90589cee8147b4e"
     "0c"
     "3bfb271bb1cb9ce7f723751",
     "b936cee86c9f87aa5d3c6f2e84cb5a4239a5fe50480a6ec66b70ab5b1f4ac6730c6c515421b327ec1d69402e53dfb49ad7381eb"
     "06"
     "7b338fd7b0cb22247225d47"}};

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

} // namespace

TEST(Signature, digestsAgreeWithThePublishedVectors)
{
    for (const Vector& vector : vectors) {
        const qsizetype keyLength = vector.algorithm == HmacAlgorithm::MD5 ? 16 : 20;
        EXPECT_EQ(hmac(u"Hi There"_s, vector.algorithm, QString(keyLength, QChar(0x0b))),
                  text(vector.hiThere));
        EXPECT_EQ(hmac(u"what do ya want for nothing?"_s, vector.algorithm, u"Jefe"_s), text(vector.jefe));
        const QString whole =
            hmac(u"Test With Truncation"_s, vector.algorithm, QString(keyLength, QChar(0x0c)));
        EXPECT_TRUE(whole.startsWith(text(vector.truncated))) << qPrintable(whole);
        EXPECT_EQ(whole.size(), 2 * vector.digestLength);
    }
}

TEST(Signature, digestsTakeTheBytesOfUtf8AndKeysOfAnyLength)
{
    for (const Vector& vector : vectors) {
        EXPECT_EQ(hmac(u"Ключ"_s + QChar::Null + u'é', vector.algorithm, QString(200, u'k')),
                  text(vector.longKey));
        EXPECT_EQ(hmac(QString(), vector.algorithm, QString()), text(vector.nothing));
    }
}

TEST(Signature, isTheDigestOfTheProgramsKeyWithTheHourForAKey)
{
    const Calendar utc(QTimeZone::utc());
    const QString expected = u"deef4f203825cfe9867f0a187b6846b56c41aa3d97d9a69061d3e351260a2139"_s;
    EXPECT_EQ(requestSignature(u"the key"_s, 1'700'000'000, utc), expected); // 22:13:20
    EXPECT_EQ(requestSignature(u"the key"_s, 1'699'999'200, utc), expected); // 22:00:00
    EXPECT_EQ(requestSignature(u"the key"_s, 1'700'002'799, utc), expected); // 22:59:59
    EXPECT_NE(requestSignature(u"the key"_s, 1'700'002'800, utc), expected); // 23:00:00
    EXPECT_NE(requestSignature(u"the key"_s, 1'699'999'199, utc), expected);
    EXPECT_NE(requestSignature(u"the Key"_s, 1'700'000'000, utc), expected);
}

TEST(Signature, theHourIsTheLocalOne)
{
    // 03:43:20 there: their hour began when it was 21:30 in UTC.
    EXPECT_EQ(requestSignature(u"the key"_s, 1'700'000'000, Calendar(QTimeZone("Asia/Kolkata"))),
              hmac(u"the key"_s, HmacAlgorithm::SHA256, u"1699997400"_s));
    EXPECT_EQ(hmac(u"the key"_s, HmacAlgorithm::SHA256, u"1699997400"_s),
              u"eeaa1b2409260a765000ecf26854df82585d0a33a0d3f2a78aaa959370d8ce17"_s);
}

} // namespace zelvor
