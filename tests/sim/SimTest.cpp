#include "SimTest.h"

#include "ProMdl.h"

std::wstring SimTest::Name(ProMdl mdl) const {
  ProMdlName name{};
  EXPECT_EQ(ProMdlMdlnameGet(mdl, name), PRO_TK_NO_ERROR);
  return name;
}

std::wstring SimTest::Origin(ProMdl mdl) const {
  ProPath origin{};
  EXPECT_EQ(ProMdlOriginGet(mdl, origin), PRO_TK_NO_ERROR);
  return origin;
}

ProMdl SimTest::Load(const std::wstring& path, ProError expected) const {
  ProPath buffer{};
  path.copy(buffer, PRO_PATH_SIZE - 1);
  ProMdl mdl = nullptr;
  EXPECT_EQ(ProMdlFiletypeLoad(buffer, PRO_MDLFILE_UNUSED, PRO_B_FALSE, &mdl), expected);
  return mdl;
}

std::string ModelJson(const std::string& type, const std::string& keys) {
  return "{\"type\": \"" + type + "\"" + (keys.empty() ? "" : ", " + keys) + "}";
}

std::string MessageFileText(const std::vector<std::pair<std::string, std::string>>& keyAndText) {
  std::string text;
  for (const auto& [key, shown] : keyAndText) text += key + "\nEnglish " + key + "\n" + shown + "\n#\n";
  return text;
}
