// Measures the form: from the start of its process to the end of one that ends when the first frame is painted, and
// Compile pressed in it against the same run of the engine without a window.

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "AppState.h"
#include "Compile.h"
#include "FormStyle.h"
#include "FormUi.h"
#include "Measure.h"
#include "ProgramFolder.h"
#include "QtText.h"
#include "frmMain.h"

namespace folionet::bench {
namespace {

struct Arguments {
  std::string library;
  std::string work;
  int runs = 0;
};

// Chooses the folder for the site and wants nothing read.
class BenchUi : public FormUi {
 public:
  explicit BenchUi(std::string site) : m_site(std::move(site)) {}
  void ShowMessage(const Message& message) override { m_last = message.title; }
  std::string ChooseFolder(const std::string& /*initial*/, const std::string& /*title*/) override { return m_site; }
  const std::string& Last() const { return m_last; }

 private:
  std::string m_site;
  std::string m_last;
};

// Ends the program when the frame at hand is painted.
class FirstFrame : public QObject {
 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) QTimer::singleShot(0, [] { QApplication::exit(0); });
    return QObject::eventFilter(watched, event);
  }
};

class Form {
 public:
  explicit Form(const Arguments& arguments)
      : m_site(arguments.work + "/form-site"),
        m_store(arguments.work + "/config"),
        m_ui(m_site),
        m_state{m_store, m_ui, ExecutableFolder(), {arguments.library, ""}},
        m_form(m_state) {
    m_ui.SetForm(&m_form);
    if (!m_form.LoadForm()) throw std::runtime_error("the form does not start");
  }
  ~Form() { m_ui.SetForm(nullptr); }
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  int ShowOneFrame() {
    FirstFrame watcher;
    m_form.installEventFilter(&watcher);
    m_form.show();
    return QApplication::exec();
  }

  void Prepare() {
    std::filesystem::create_directories(m_site);
    Control<QPushButton>("cmdBrowse").click();
    Control<QLineEdit>("txthttpRoot").setText("index.html");
    m_form.show();
    QApplication::processEvents();
  }

  double CompileInForm() {
    Renew();
    auto& button = Control<QPushButton>("cmdCompile");
    const double time = Time([&] { button.click(); });
    if (!m_ui.Last().starts_with("Compilation Complete")) throw std::runtime_error("no compile: " + m_ui.Last());
    return time;
  }

  double CompileAlone() {
    Renew();
    CompileRequest request;
    request.options = m_state.options;
    request.texts = m_state.texts;
    request.txtOutputPath = m_site + "/";
    request.txtFilename = FromQt(Control<QLineEdit>("txtFilename").text());
    request.cboLang = FromQt(Control<QComboBox>("cboLang").currentText());
    request.cboBibleName = 0;
    request.programFolder = m_state.programFolder;
    Silent silent;
    CompileOutcome outcome = CompileOutcome::kFailed;
    const double time = Time([&] { outcome = cmdCompile_Click(request, m_state.glob, silent); });
    if (outcome != CompileOutcome::kDone) throw std::runtime_error("the engine alone does not compile");
    return time;
  }

 private:
  // The person who is not there.
  class Silent : public UserInterface {
   public:
    void ShowMessage(const Message& /*message*/) override {}
    bool AskYesNo(const std::string& /*title*/, const std::string& /*text*/) override { return false; }
    std::optional<std::string> AskText(const InputBox& /*box*/) override { return std::nullopt; }
    void ShowErrorReport(const ErrorReport& report) override { std::fprintf(stderr, "%s\n", report.extraInfo.c_str()); }
    void SetPanel(int /*panel*/, std::string_view /*text*/) override {}
  };

  template <typename Widget>
  Widget& Control(const char* name) const {
    auto* const widget = m_form.findChild<Widget*>(name);
    if (widget == nullptr) throw std::runtime_error(std::string("the form has no ") + name);
    return *widget;
  }

  void Renew() const {
    std::filesystem::remove_all(m_site);
    std::filesystem::create_directory(m_site);
  }

  std::string m_site;
  SettingsStore m_store;
  BenchUi m_ui;
  AppState m_state;
  frmMain m_form;
};

void Measure(const std::string& self, const Arguments& arguments) {
  const auto opening = Interleave(arguments.runs, {[&] {
                                    return RunProcess({self, arguments.library, arguments.work});
                                  }});
  std::printf("%-58s %8.2f ms\n", "form, start to first painted frame", opening[0]);
  Form form(arguments);
  form.Prepare();
  const auto compile =
      Interleave(arguments.runs, {[&] { return form.CompileInForm(); }, [&] { return form.CompileAlone(); }});
  std::printf("%-58s %8.2f ms : %7.2f ms = %5.2f\n", "Compile in the form : the same run without a window", compile[0],
              compile[1], compile[0] / compile[1]);
}

}  // namespace
}  // namespace folionet::bench

// A folder that holds Sysdefs, Index and Modules, a folder in a memory file system, and the runs of each measurement;
// without them the form is only opened, painted and ended.
int main(int argc, char** argv) {
  try {
    const std::vector<std::string> given(argv + 1, argv + argc);
    if (given.size() != 2 && given.size() != 3) throw std::runtime_error("folionet-form-bench LIBRARY WORK [RUNS]");
    const bool isMeasured = given.size() == 3;
    const folionet::bench::Arguments arguments{given[0], given[1],
                                               isMeasured ? folionet::bench::ReadRuns(given[2]) : 0};
    const QApplication app(argc, argv);
    folionet::DressApplication();
    if (!isMeasured) return folionet::bench::Form(arguments).ShowOneFrame();
    folionet::bench::Measure(argv[0], arguments);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "folionet-form-bench: %s\n", error.what());
    return 3;
  }
  return 0;
}
