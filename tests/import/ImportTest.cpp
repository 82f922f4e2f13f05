#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <utility>

#include "BookTable.h"
#include "CatalogueText.h"
#include "FlowingText.h"
#include "ImportText.h"
#include "RunTimeError.h"
#include "TemporaryFolder.h"
#include "Text.h"
#include "TitleLanguages.h"
#include "Utf8.h"

namespace folionet::test {
namespace {

TEST(BookTable, NamesFindTheirBook) {
  const std::pair<const char*, int> cases[] = {
      {"gen", 1},       {"Ge", 1},         {"Gen.", 1},        {"1SA", 9},        {"I Samuel", 9}, {"1samuel", 9},
      {"II Kings", 12}, {"Psalm", 19},     {"SSol", 22},       {"iii john", 64},  {"1 Jn.", 62},   {"Philemon", 57},
      {"Phil", 50},     {"Jdgs", 7},       {"Judges  ", 7},    {"Ezekiel\t", 26}, {"I", 0},        {"IV Kings", 0},
      {"", 0},          {"1. KÖNIGE", 11}, {"Apocalisse", 66}, {"1_Sam-uel", 9}};
  for (const auto& [name, book] : cases) EXPECT_EQ(FindBook(name), book) << name;
  std::string codes;
  std::set<std::string> labels;
  for (int book = 1; book <= kBooks; ++book) {
    codes.append(BookAt(book).code).append(" ");
    labels.insert(BookLabel(book));
  }
  EXPECT_EQ(codes,
            "GEN EXO LEV NUM DEU JOS JDG RUT 1SA 2SA 1KI 2KI 1CH 2CH EZR NEH EST JOB PSA PRO ECC SNG ISA JER LAM EZK "
            "DAN HOS JOL AMO OBA JON MIC NAM HAB ZEP HAG ZEC MAL MAT MRK LUK JHN ACT ROM 1CO 2CO GAL EPH PHP COL 1TH "
            "2TH 1TI 2TI TIT PHM HEB JAS 1PE 2PE 1JN 2JN 3JN JUD REV ");
  EXPECT_EQ(labels.size(), 66U);
  EXPECT_TRUE(labels.contains("1Sa"));
}

TEST(TitleLanguages, HaveTitlesThatMakeFileNamesOfTheirOwnAndFindTheirBook) {
  for (const TitleLanguage& language : TitleLanguages()) {
    std::set<std::string> names;
    for (const auto title : language.titles) names.insert(FoldCase(title));
    EXPECT_EQ(names.size(), 66U) << language.name;
    for (int book = 1; book <= kBooks; ++book) {
      EXPECT_EQ(FindBook(language.titles[static_cast<std::size_t>(book) - 1]), book) << language.name;
    }
  }
}

TEST(CatalogueText, HasNumbersUpTo999) {
  const TemporaryFolder folder;
  std::string full;
  for (int number = 1; number < 1000; ++number) full += std::to_string(number) + ",0,X,x\n";
  folder.Write("T", full);
  EXPECT_THROW(CatalogueText(folder.Path() + "T").With({"N", "S"}), RunTimeError);
  folder.Write("T", full.replace(0, 1, "2000"));
  EXPECT_TRUE(CatalogueText(folder.Path() + "T").With({"N", "S"}).ends_with("999,0,X,x\n1,0,\"N\",\"S\"\r\n"));
}

TEST(FlowingText, HasSingleBlanksAndReferencesWhereverTheyComeFrom) {
  const std::pair<std::string, std::string> cases[] = {
      {" ", " "}, {"  ", " "},  {"\t", " "},      {" \x7F", " "}, {"\x7F", " "}, {" \uFEFF", " "}, {"\uFEFF", ""},
      {"ﬁ", "ﬁ"}, {" ﬁ", " ﬁ"}, {" &", " &amp;"}, {"<", "&lt;"},  {">", "&gt;"}, {" \n", " "}};
  for (std::size_t at = 1; at < 40; ++at) {
    for (const auto& [given, expected] : cases) {
      FlowingText text;
      EXPECT_TRUE(text.Add(std::string(at, 'x') + given + std::string(40 - at, 'y')));
      EXPECT_EQ(text.Text(), std::string(at, 'x') + expected + std::string(40 - at, 'y'));
    }
  }
}

// "book chapter:verse text|" for each verse, or the message when they cannot be read.
std::string Outcome(const std::string& content) {
  const TemporaryFolder folder;
  folder.Write("in", content);
  std::string list;
  try {
    const ImportedBible bible = ReadBible({{folder.Path() + "in"}, {}});
    for (std::size_t i = 0; i < bible.VerseCount(); ++i) {
      const auto [book, chapter, field, text] = bible.VerseAt(i);
      list += std::to_string(book) + " " + std::to_string(chapter) + ":" + std::string(field) + " ";
      list.append(text).append("|");
    }
  } catch (const RunTimeError& error) {
    return std::to_string(error.Line()) + ": " + error.Detail();
  }
  return list;
}

// One verse for each of the 66 names "A1" to "A66", the names of the given places replaced.
std::string SixtySixNames(const std::map<int, std::string>& replaced) {
  std::string content;
  for (int place = 1; place <= kBooks; ++place) {
    const auto other = replaced.find(place);
    content += (other != replaced.end() ? other->second : "A" + std::to_string(place)) + " 1:1 x\n";
  }
  return content;
}

TEST(Lines, OfSixtySixNamesStandForTheBooksInOrder) {
  std::string expected;
  for (int book = 1; book <= kBooks; ++book) expected += std::to_string(book) + " 1:1 x|";
  EXPECT_EQ(Outcome(SixtySixNames({})), expected);
  EXPECT_EQ(Outcome(SixtySixNames({{18, "Job"}, {66, "REV"}})), expected);
  EXPECT_EQ(Outcome(SixtySixNames({}) + "a66 1:2 y\n"), expected + "66 1:2 y|");
  // Names that are none of the 66, or in another order, are left out.
  EXPECT_EQ(Outcome(SixtySixNames({{3, "Job"}})), "18 1:1 x|");
  EXPECT_EQ(Outcome(SixtySixNames({{3, "Rev"}})), "66 1:1 x|");
  EXPECT_EQ(Outcome(SixtySixNames({}) + "A67 1:1 x\n"),
            "0: verses of one of the 66 books were expected; the books are others, such as \"A1\"");
  std::string many = "JON 1:1 x\n";
  for (int name = 0; name < 1000; ++name) many += "A" + std::to_string(name) + " 1:1 x\n";
  EXPECT_EQ(Outcome(many), "32 1:1 x|");
  EXPECT_EQ(Outcome(many + "A 1:1 x\n"), "1002: A999 1:1: there are more than 1000 different names of books");
}

TEST(Lines, AreReadOrToldWithTheirNumber) {
  const std::string large(200000, 'a');
  const std::pair<std::string, std::string> cases[] = {
      {"Ge1:1 " + large + "\nGe1:2 b", "1 1:1 " + large + "|1 1:2 b|"},
      {"\xEF\xBB\xBFGe1:1 In the beginning\r\n\r\n \t\r\nGEN 1:2 And\n1 Samuel 3:4 And\nII Kings 2:1: came: to\nMat "
       "2:22: \nPsalm\t3:6\t I\thave  \nMat 2:21\nGe1:3 12:30 o'clock\nJude1:255 x\nGe1:1-2a y\n",
       "1 1:1 In the beginning|1 1:2 And|1 1:3 12:30 o'clock|1 1:1-2a y|9 3:4 And|12 2:1 came: to|19 3:6 I have|40 "
       "2:22 |40 2:21 |65 1:255 x|"},
      {"", "0: A Bible text was expected; the file is empty."},
      {"Ge1:1 In\n\r\nhello\r\n",
       "3: Genesis 1:1: a verse such as \"GEN 1:1 In the beginning\" was expected: \"hello\""},
      {"Ge1:1 a\nGe:2 b", "2: Genesis 1:1: a verse such as \"GEN 1:1 In the beginning\" was expected: \"Ge:2 b\""},
      {"Jude 5 a 3:4\nOBA 3-4 b\n2 John 6\nPhilemon 1:4 c\nJude 1:6 d\nJude 7 e\n",
       "31 1:3-4 b|57 1:4 c|63 1:6 |65 1:5 a 3:4|65 1:6 d|65 1:7 e|"},
      {"Jude,1,5,\"a, \"\"b\"\"\n\n#c\r\n2\"\nJude,1,6,\"d\" e\n", "65 1:5 a, \"b\" #c 2|65 1:6 \"d\" e|"},
      {"Jude,1,5,a\nJude,1,6,\"b\nJude,1,7,c\n",
       "2: Jude 1:5: a closing quote was expected: \"Jude,1,6,\"b\\nJude,1,7,c\""},
      {"Jude,1,5,\"a\nJude,1,6,\"b\"\n", "1: a closing quote was expected: \"Jude,1,5,\"a\\nJude,1,6,\"b\"\""},
      {"Jude\t1\t5\t\"a,\" b\nJude\t1\t6\t\"c\"\nJude\t1\t7\t\"d \"\"e\"\"\"\nJude\t1\t8\t\"f\n",
       "65 1:5 \"a,\" b|65 1:6 \"c\"|65 1:7 d \"e\"|65 1:8 \"f|"},
      {"Ge1:1 at 1,2,3,4 o'clock\nGe1:2 b\n", "1 1:1 at 1,2,3,4 o'clock|1 1:2 b|"},
      {"Ref;Note\nGe1:1;a", "1 1:1 a|"},
      {"\"Ge1:1\",\"a, b\"\n", "1 1:1 a, b|"},
      {"Ge1:1,Mark,my,2,words", "1 1:1 Mark,my,2,words|"},
      {std::string(1000, '\n') + "Jude,1,5,\"a\nb\"\n", "65 1:5 a b|"},
      {"Ge1:1 a\n\n" + std::string((4 << 20) + 1, 'b'), "3: Genesis 1:1: a line of at most 4 MiB was expected"},
      {"Ge1:1z a; b", "1 1:1z a; b|"},
      {"1,1,1,1,a", "1 1:1 a|"},
      {"Jude\t1\t1\ta\nJude\t1\t2", "65 1:1 a|65 1:2 |"},
      {"t;b;c;v\na;Jude;1;1\nb;Jude;1",
       "3: Jude 1:1: a verse such as \"GEN 1:1 In the beginning\" was expected: \"b;Jude;1\""},
      {"\\h Ruth\n\\p", "0: A Bible text was expected: USFM, USX, USFX, OSIS, Zefania XML, or one verse a line."},
      {"2 John 1x2\nGe1:1 a", "0: A Bible text was expected: USFM, USX, USFX, OSIS, Zefania XML, or one verse a line."},
      {"Ge0:1 In", "1: Genesis: a chapter from 1 to 255 was expected: \"0\""},
      {"Ge99999999999:1 In", "1: Genesis: a chapter from 1 to 255 was expected: \"99999999999\""}};
  for (const auto& [content, expected] : cases) EXPECT_EQ(Outcome(content), expected) << content;
  for (const std::string odd : {"1 2", "1\x7F", "1<", "1>", "1&", "1\"", "a1", "123456789012345678901234567890123"}) {
    EXPECT_EQ(Outcome("Jude\t1\t1\ta\nJude\t1\t" + odd + "\tb"),
              "2: Jude 1: the number of a verse was expected: " + Quoted(odd));
  }
}

// Each byte of a text of ASCII with a zero behind it, or before it.
std::string Wide(const std::string& text, bool isLittle) {
  std::string wide;
  for (const char c : text) wide += isLittle ? std::string{c, '\0'} : std::string{'\0', c};
  return wide;
}

TEST(Text, IsInTheCharsetThatTheFileTells) {
  const std::string others = " was expected; \"folionet-cli import --charset NAME\" reads one in another charset";
  const std::pair<std::string, std::string> cases[] = {
      {"\xFF\xFE" + Wide("Ge1:1 a\rGe1:2 b", true), "1 1:1 a|1 1:2 b|"},
      {"\xFE\xFF" + Wide("Ge1:1 a", false), "1 1:1 a|"},
      {Wide("\\id GEN\n\\c 1\n\\v 1 a", true), "1 1:1 a|"},
      {Wide("<?xml version='1.0' encoding='UTF-16'?><usx><book code='GEN'/><chapter number='1'/><verse "
            "number='1'/>a</usx>",
            false),
       "1 1:1 a|"},
      {"\\id GEN\n\\ide 1251 - Cyrillic\n\\c 1\n\\v 1 \xC1 1250", "1 1:1 Б 1250|"},
      {"\\id GEN\n\\ide 1251\n\\c 1\n\\v 1 é", "1 1:1 é|"},  // turned into UTF-8 since
      {"<?xml version='1.0' encoding='latin1'?><XMLBIBLE><BIBLEBOOK bnumber='1'><CHAPTER cnumber='1'><VERS "
       "vnumber='1'>\x93\xE9</VERS></CHAPTER></BIBLEBOOK></XMLBIBLE>",
       "1 1:1 “é|"},
      {"Ge1:1 a\nGe1:2 \xE9\nGe1:3 b", "2: Genesis 1:1: text in UTF-8" + others},
      {"Ge1:1 a" + std::string(200000, '\n') + "Ge1:2 \xE9", "200001: Genesis 1:1: text in UTF-8" + others},
      {"\xFF\xFE" + Wide("Ge1:1 a\nGe", true) + "b", "2: Genesis 1:1: text in UTF-16LE" + others}};
  for (const auto& [content, expected] : cases) EXPECT_EQ(Outcome(content), expected);
  // Parted wherever the bytes are read up to.
  const std::string part = "\u00C0\u0800\U00010000\\+nd a|b\\+nd*c//d~/\\f + \\ft e\\f*\\zz g|h\\zz*";
  std::string given;
  std::string expected;
  for (int i = 0; i < 30; ++i) {
    given += part;
    expected += "\u00C0\u0800\U00010000ac d\u00A0/g";
  }
  for (std::size_t before = 0; before < 2 * part.size(); ++before) {
    const std::string head = std::string(before < part.size() ? "" : "\uFEFF") + "\\id JUD\n\\ide 1252\n\\v 1 ";
    const std::string filling(64900 + before, 'a');
    EXPECT_TRUE(Outcome(head + filling + given) == "65 1:1 " + filling + expected + "|") << before;
  }
}

TEST(Forms, GiveTheTextOfEachVerse) {
  const std::string usx = "<usx version='3.0'><book code='PSA' style='id'/><chapter number='3' style='c'/>";
  const std::string osis = "<osis><osisText><div type='book' osisID='Ps'><chapter osisID='Ps.3'>";
  const std::string sixty(60, 'x');
  const std::string usfx = "<usfx><book id='PSA'><c id='3'/>";
  const std::string zefania = "<XMLBIBLE><BIBLEBOOK bnumber='19'><CHAPTER cnumber='3'><VERS vnumber='1'>";
  const std::pair<std::string, std::string> cases[] = {
      {"\\id PSA\n\\c  3\n\\d Of \\nd D\\nd*\\f + \\ft n\\f*.\n\\q1 \\v 1 a\\q2 b\\va 2\\va*\n\\qa "
       "Aleph\n\\b\n\\q~c//d \\qs S\\qs*\n\\tr \\th1 e\\tc2 f\n\\p \\v 2-3 \\wj g \\+add h\\+add*\\wj* \\rb "
       "i|gloss=\"j\"\\rb*\\qt-s |sid=\"x\"\\* k\\ts-s\\*|l\n\\s no\n\\v 4a \\zx m\\zx*\\x - \\xo 3 \\xt n\\x*\\ef - "
       "\\ft n\\ef*\\esb\n\\p no\n\\esbe\n\\p o/",
       "19 3:1 Of D. a b \u00A0c d S e f|19 3:2-3 g h i k|l|19 3:4a m o/|"},
      {usx + "<para style='d'>Of <char style='nd'>D</char><note style='f'>n</note></para><para style='q1'><verse "
             "number='1'/>a <char style='add'>b <char style='nd'>c</char></char></para><para "
             "style='q2'>d<optbreak/>e<ms style='qt-s'/><figure style='fig'>no</figure><verse eid='x'/> "
             "no</para><table><row style='tr'><cell style='tc1'><verse number='2'/>f</cell><cell "
             "style='tc2'>g</cell></row></table><para style='s1'>no</para><para style='p'>h</para></usx>",
       "19 3:1 Of D a b c d e|19 3:2 f g h|"},
      {osis + "<title type='psalm'>Of D<note>n</note></title><verse sID='x' "
              "osisID='Ps.3.1'/><lg><l>a</l><l>b<lb/>c</l></lg><w lemma='x'>d</w> "
              "<transChange>e</transChange><rdg>n</rdg><verse eID='x'/>no<verse osisID='Ps.3.2 Ps.3.3'><title "
              "canonical='true'>f</title><seg>g</seg><title>no</title></verse><verse "
              "osisID='Ps.3.4!a'>h</verse></chapter></div></osisText></osis>",
       "19 3:1 Of D a b c d e|19 3:2-3 f g|19 3:4a h|"},
      {osis + "<verse osisID='Ps.3.1'/>a <divineName>b</divineName><title>no</title><verse "
              "osisID='Ps.3.2'></verse>c</chapter></div></osisText></osis>",
       "19 3:1 a b|19 3:2 c|"},
      {osis + "<verse osisID='Ps.3.1'><seg>a</seg></verse>no<verse osisID='Ps.3.2'/>no<verse osisID='Jude.5 "
              "Jude.6'>b</verse><verse osisID='Jude.1.7'>c</verse><verse osisID='Ps.3.9 Ps.4.1'><q "
              "marker='m'>d</q></verse></chapter></div></osisText></osis>",
       "19 3:1 a|19 3:2 |19 3:9 d|65 1:5-6 b|65 1:7 c|"},
      {"<osisCorpus><verse osisID='G'/></osisCorpus>",
       "1: the osisID of a verse, such as \"Gen.1.1\", was expected: \"G\""},
      {usfx + "<d>Of D</d><q><v id='1'/>a<f>n</f><add>b</add><zz>c</zz></q><q>c<optionalLineBreak/>d<ve/></q><p "
              "sfm='ip'>no</p><p sfm='d'>e</p><p><v id='2'/>f "
              "<wj>g</wj><x>n</x><generated>no</generated></p></book></usfx>",
       "19 3:1 Of D abc c d|19 3:2 e f g|"},
      {zefania + "<STYLE fs='italic'>a</STYLE> <gr str='1'>b</gr><NOTE>n<STYLE>n</STYLE></NOTE><XREF/><BR/>c &amp; "
                 "&lt;</VERS><CAPTION>no</CAPTION></CHAPTER></BIBLEBOOK></XMLBIBLE>",
       "19 3:1 a b c &amp; &lt;|"},
      {"<XMLBIBLE><BIBLEBOOK bnumber='0' bname='Titre' bsname='Titus'><CHAPTER cnumber='1'><VERS "
       "vnumber='1'>a</VERS></CHAPTER></BIBLEBOOK><BIBLEBOOK bname='Philemon' bsname='x'><VERS "
       "vnumber='1'>b</VERS></BIBLEBOOK></XMLBIBLE>",
       "56 1:1 a|57 1:1 b|"},
      {zefania + "a</VERS>no</CHAPTER></BIBLEBOOK></XMLBIBLE>", "19 3:1 a|"},
      {"\"Book\";\"Chapter\";\"Verse\";\"Text\"\r\n\"Jude\";1;1;\"a; \"\"b\"\"\"\r\n", "65 1:1 a; \"b\"|"},
      {"id\tb\tc\tv\tt\n1001001\t1\t1\t1\ta\n", "1 1:1 a|"},
      {"<usx><book code='GEN'/><para style='p'><verse number='1'/>a</para></usx>",
       "1: Genesis: a chapter was expected before verse \"1\""},
      {"\\id JUD\n\\v 1 a\n\\id\n", "4: Jude 1:1: the code or the name of a book was expected"},
      {"\\id JUD\n\\v 1\u200F-2 a", "65 1:1-2 a|"},
      {"A licence: free.\r\n\r\n\\id JUD\r\n\\v 1 a\r\n\\v 2", "65 1:1 a|65 1:2 |"},
      {"\\id JUD\n\\v 1 a \\xx b|c \\nd* d\n\\v 2 \\xx e|f \\xx* g", "65 1:1 a b|c d|65 1:2 e g|"},
      {"<usx>\n<book code='JUD'/>", "2: Jude: well-formed XML was expected: the end of usx (line 1), not of the file"},
      {"<osis>\n</x>", "2: well-formed XML was expected: the end of osis (line 1), not of the file"},
      {"<usx>\n<book code=JUD/></usx>", "2: well-formed XML was expected: AttValue: \" or ' expected"},
      {"\\id GEN\n\\c 2\n\\v 1 a\n\\id REV\n\\c 2\n\\c 256\n",
       "6: Revelation: a chapter from 1 to 255 was expected: \"256\""},
      {"\\id REV\n\\v 1 a\n", "2: Revelation: a chapter was expected before verse \"1\""},
      {"\\id REV\n\\c 1\n\\v x\n", "3: Revelation 1: the number of a verse was expected: \"x\""},
      {"<usx><verse number='1'/></usx>", "1: a book was expected before verse \"1\""},
      {usx + "<para style='d'>O<optbreak/>D<verse number='1'/>a</para><verse number='2'/>b</usx>",
       "19 3:1 O D a|19 3:2 b|"},
      {"\\h Ruth\n\\v 1 a", "2: \\id and the code of a book were expected before \\v \"1\""},
      // What is shown of a text ends behind 60 bytes.
      {"\\id JUD\n\\v " + sixty, "2: Jude 1: the number of a verse was expected: \"" + sixty + "\""},
      {"\\id JUD\n\\v " + sixty + "x", "2: Jude 1: the number of a verse was expected: \"" + sixty + "...\""}};
  for (const auto& [content, expected] : cases) EXPECT_EQ(Outcome(content), expected) << content;
}

}  // namespace
}  // namespace folionet::test
