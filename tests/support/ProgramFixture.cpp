#include "support/ProgramFixture.h"

#include <QtTest>

#include "desktop/Style.h"

using namespace Qt::StringLiterals;

ProgramFixture::ProgramFixture() {
  ApplyStyle(*qApp);
}

ProgramFixture::~ProgramFixture() {
  m_program.reset();
}

Platform ProgramFixture::OnThisTree(SerialPort& modem) {
  Platform platform = PlatformOn(Tree.Root(), Files, Calendar, Dialogs, Paper, modem);
  platform.EXEName = EXEName;
  platform.Version = u"1.0.0"_s;
  platform.Patience = {Patience, [this] { return WorkTime; }};
  return platform;
}

bool ProgramFixture::Start() {
  m_program.reset();
  m_modem = std::make_unique<SerialLine>(Ports);
  m_program = std::make_unique<Program>(OnThisTree(*m_modem));
  const bool runs = m_program->Start();
  ScreenDriver::ProcessEvents();
  return runs;
}

bool ProgramFixture::StartSecond() {
  SerialLine none(PortTable{});
  return Program(OnThisTree(none)).Start();
}

bool ProgramFixture::StartAtMenu() {
  const QString settings = u'/' + EXEName + "Settings.txt"_L1;
  if (!Tree.Exists(settings)) {
    Tree.Write(settings, "1,0,0,0,0,\"0.0\",\"0\",#TRUE#,#FALSE#,\"$0.00\",\"$0.00\"\r\n");
  }
  if (!Tree.Exists(u"/MyBusinessData.txt"_s)) {
    Tree.Write(
        u"/MyBusinessData.txt"_s,
        "\"Orange Grove Supply\",\"12 Grove Road\",\"\",\"Ocala\",\"FL\",\"34470\",\"352-555-0100\",\"\",\"\"\r\n");
  }
  if (!Tree.Exists(u"/Phone.txt"_s)) {
    Tree.Write(u"/Phone.txt"_s, "#FALSE#\r\n1\r\n");
  }
  if (!Start()) {
    QTest::qFail("the program didn't start", __FILE__, __LINE__);
    return false;
  }
  ScreenDriver(u"frmSplash"_s).Click(u"cmdContinue"_s);
  return ScreenDriver::IsShown(u"frmStartup"_s);
}

void ProgramFixture::End() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && dynamic_cast<Screen*>(window) != nullptr) {
      ScreenDriver(window).CloseByUser();
      break;
    }
  }
  if (!m_program->HasEnded()) {
    QTest::qFail("the program didn't end", __FILE__, __LINE__);
  }
  m_program.reset();
}
