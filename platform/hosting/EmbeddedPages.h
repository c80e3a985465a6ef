#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/hosting/PageEngine.h"
#include "platform/hosting/PageSwipe.h"
#include "platform/render/Scene.h"
#include "platform/webkit/WebContent.h"

namespace quorix::hosting {

/// The web content of an embed, and the engine that shows it. Passes loads to the engine and the
/// page's requests to the content, and limits the time of loads and answers. Main thread.
class EmbeddedPage final : private PageEngine::Client {
 public:
  /// Shows the page. `pageHangs` and `pageEnded` are called outside the engine's own calls.
  class Owner {
   public:
    /// Null if no engine can show the page.
    virtual std::unique_ptr<PageEngine> openPage(const render::EmbedItem& embed,
                                                 PageEngine::Client& client) = 0;
    /// A page did not answer in time after a key that closes the sheet: close the sheet.
    virtual void pageHangs() = 0;
    /// A page's load failed or its process ended: it is blank and takes no keys.
    virtual void pageEnded() = 0;
    /// Whether swipes are mirrored.
    virtual bool isRightToLeft() const = 0;

   protected:
    ~Owner() = default;
  };

  /// Null if the engine cannot show the page. `owner` outlives the page.
  static std::unique_ptr<EmbeddedPage> open(const render::EmbedItem& embed, Owner& owner);
  ~EmbeddedPage();
  EmbeddedPage(const EmbeddedPage&) = delete;
  EmbeddedPage& operator=(const EmbeddedPage&) = delete;

  const render::Embed* content() const { return content_.get(); }
  PageEngine& engine() const { return *engine_; }

  /// Goes back or forward for a key that the page did not use. False for other keys, and for Back
  /// without a page to go to.
  bool use(Key key);
  /// Whether `use` would use the key.
  bool wouldUse(Key key) const;

 private:
  /// A timer; destroying it cancels it.
  using Timer = std::shared_ptr<std::function<void()>>;

  EmbeddedPage(std::shared_ptr<webkit::WebContent> content, Owner& owner)
      : content_(std::move(content)), owner_(owner) {}

  static void start(Timer& timer, std::chrono::milliseconds after, std::function<void()> work);
  void later(std::function<void()> work);
  void expectAnswer(std::function<void()> then);
  HistoryStep stepOf(SwipeDirection direction) const;
  bool leadsSomewhere(SwipeDirection direction) const;
  void go(SwipeDirection direction);
  void loadFailed();
  bool swipes(const TouchEvent& event);

  bool mayNavigate(std::string_view scheme, std::string_view address, bool mainFrame) override;
  void windowAsked(std::string_view address, bool byUser) override;
  void loading(int percent) override;
  void loadEnded(int error) override;
  void processEnded() override;
  void answered(std::string_view answer) override;
  void gestured() override { gesture_.happened(webkit::UserGesture::Clock::now()); }
  void closingKeyGiven() override { expectAnswer({}); }
  bool touched(const TouchEvent& event) override;
  void scrolled(const TrackpadEvent& event) override;

  std::shared_ptr<webkit::WebContent> content_;
  Owner& owner_;
  std::shared_ptr<EmbeddedPage*> alive_ = std::make_shared<EmbeddedPage*>(this);
  std::chrono::milliseconds loadTimeout_ = foundation::URLRequest::defaultTimeout;
  Timer loadTimer_;       ///< runs since the load last progressed
  bool hasData_ = false;  ///< data of the load has arrived
  Timer answerTimer_;     ///< runs since the page was asked whether it is alive
  std::function<void()> onAnswer_;
  webkit::UserGesture gesture_;
  EdgeSwipe edgeSwipe_;
  bool hasFingers_ = false;  ///< they swipe: the page does not get them
  TrackpadSwipe trackpadSwipe_;
  std::optional<SwipeDirection> askedFor_;  ///< set until the page answers about the scroll
  std::unique_ptr<PageEngine> engine_;
};

/// The place of a page in a sheet's panel, in points. The top of `room` is on a whole device pixel.
struct PagePlace {
  layout::Rect room;     ///< takes input; below the panel's rounded corners
  double strip = 0;      ///< height of the part above the room, which takes no input
  double radius = 0;     ///< of the strip's upper corners
  bool isAtTop = false;  ///< the strip is at the panel's top, with both corners

  /// `clips`: whether the toolkit can clip a page to rounded corners. Without it there is no strip.
  static PagePlace of(const render::EmbedItem& embed, const render::Scene& panel, double scale,
                      bool clips);
};

/// The live pages of one display list. Main thread.
class EmbeddedPages {
 public:
  explicit EmbeddedPages(EmbeddedPage::Owner& owner) : owner_(owner) {}

  static bool hasPages(const render::Scene& scene);
  /// Opens the pages that are new in `scene` and closes those that it no longer contains. False if
  /// a page could not be opened.
  bool follow(const render::Scene& scene);
  /// Calls back with the place of each page in `panel`, from the bottom up. This is also the order
  /// of the keyboard focus.
  void place(const render::Scene& panel, double scale, bool clips,
             const std::function<void(PageEngine&, const PagePlace&)>& at) const;
  /// Opens the addresses of the pages in `scene` outside the app.
  static void sendOutside(const render::Scene& scene);

  bool use(Key key);
  bool wouldUse(Key key) const;
  /// The pages on screen, from the bottom up.
  std::vector<PageEngine*> shown() const;

 private:
  EmbeddedPage::Owner& owner_;
  std::vector<std::unique_ptr<EmbeddedPage>> pages_;
};

}  // namespace quorix::hosting
