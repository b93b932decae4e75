"""Every window of the program, opened one after the other without a pointer: by the actions that a screen reader has and
by the keyboard. Places on the screen are never asked for, so it is the same at every scale.
"""

import sqlite3
import time

from stage import Eyes, PageServer, StageError, make_tone, wait_for

SONGS = [("Ada Larkspur", "Morning Tone"), ("Ada Larkspur", "Evening Tone"), ("Bell Tower", "Two Pitches"),
         ("Clay Flute", "One Note, and a title that is much longer than the list is wide on any screen"),
         ("Delta Pictures", "Moving Picture"), ("Echo", "Åström and Łukasz"), ("Foxglove", "Third")]
FAVOURITES = [("Birds", "Owls"), ("Birds", "Larks and other singers of the morning"), ("Ships", "Sloops")]
PAGE = """<!doctype html><meta charset=utf-8><title>{0}</title><link rel=icon href="data:,"><body style="font: 18px
sans-serif"><h1>{0}</h1><p>Words to look for.</p><input aria-label="Field of the page">"""
BUTTONS = ("push button", "button")
MENUS = ("menu item", "menu", "check menu item")
MAIN = "Brindlepost - "


class House:
    """One application folder with a user, songs, playlists and favourites; `name` is that of the folder."""

    def __init__(self, stage, name="house", auto_login=True):
        self.stage = stage
        self.eyes = Eyes()
        self.eyes.do_not_wait_long()
        self.pages = PageServer({path: PAGE.format(title) for path, title in (("/owls", "Owls"), ("/larks", "Larks"))})
        self.application = stage.make_application(name)
        self.song = make_tone(stage.folder / "Music" / "Ada Larkspur - Morning Tone.wav", 440, 240)
        self._fill(auto_login)
        self.program = None

    def _fill(self, auto_login):
        music = "C:" + str(self.song.parent).replace("/", "\\") + "\\"
        with sqlite3.connect(self.application / "dbMedia.mdb") as store:
            store.executemany("insert into tblSong values(?, ?, ?, ?, 0)",
                              [(key, artist, title, f"{music}{artist} - {title}.wav")
                               for key, (artist, title) in enumerate(SONGS, 1)])
            store.executemany("insert into tblPlayList values(?, 'Evening', ?, ?, ?)",
                              [(1, None, "", ""), (2, 1, *SONGS[0]), (3, 3, *SONGS[2])])
        with sqlite3.connect(self.application / "dbFavs.mdb") as store:
            store.executemany("insert into tblFavs values(?, ?, ?, ?)",
                              [(key + 1, group, f"  - {name}", self.address("/owls"))
                               for key, (group, name) in enumerate(FAVOURITES, 1)])
        marks = ("True", "True") if auto_login else ("True", "False")
        with sqlite3.connect(self.application / "dbLogin.mdb") as store:
            store.execute("insert into tblLogin values('ada','secret',' ',' ',' ',' ',' ',' ',?,?)", marks)

    def address(self, path):
        return f"http://127.0.0.1:{self.pages.port}{path}"

    def close(self):
        self.pages.close()
        if self.program is not None and self.program.poll() is None:
            self.program.kill()
            self.program.wait()

    # -- starting --

    def launch(self, *arguments, environment=None):
        self.program = self.stage.launch(self.application, *arguments, environment=environment)

    def reach_main_window(self):
        self.stage.window(MAIN + "Music Player", 40)
        wait_for("the splash to go", lambda: not self.stage.has_window("Brindlepost$"), 30)
        wait_for("the tracks", lambda: self.eyes.shows("Tracks", "list"))
        self.to_front(MAIN)

    # -- by the actions of a screen reader --

    def node(self, name, roles=None, seconds=10):
        return wait_for(f"the control '{name}'", lambda: self._node(name, roles), seconds)

    def _node(self, name, roles):
        for node in self.eyes.nodes():
            try:
                if node.get_name() == name and (roles is None or node.get_role_name() in roles):
                    return node
            except self.eyes._gone:
                continue
        return None

    def act(self, node, wanted=("Press", "Toggle", "ShowMenu", "click")):
        """Runs the first of the actions that the control has. One that opens a box answers late or never."""
        actions = [node.get_action_name(index) for index in range(node.get_n_actions())]
        for name in wanted:
            if name in actions:
                try:
                    node.do_action(actions.index(name))
                except self.eyes._gone:
                    pass
                return
        raise StageError(f"'{node.get_name()}' has none of {wanted}, but {actions}")

    def press(self, name, seconds=10):
        self.act(self.node(name, BUTTONS, seconds))

    def menu(self, *captions):
        """Runs an entry of the menu bar without showing the menus above it."""
        at = self.node(captions[0], MENUS)
        for caption in captions[1:]:
            at = self._entry(at, caption)
        self.act(at)

    def _entry(self, menu, caption):
        for node in self.eyes.below(menu):
            if node != menu and node.get_name() == caption and node.get_role_name() in MENUS:
                return node
        raise StageError(f"no entry '{caption}' in the menu '{menu.get_name()}'")

    def tab_to(self, name, roles=None):
        """Goes to a control of the window in front as a person without a pointer does."""
        node = self.node(name, roles)
        for _ in range(60):
            if node.get_state_set().contains(self.eyes.focused):
                return node
            self.stage.key("Tab")
        raise StageError(f"'{name}' is not reached with Tab")

    # -- windows --

    def to_front(self, title):
        window = self.stage.window(title)
        self.stage.run("xdotool", "windowactivate", "--sync", window)
        return window

    def dismiss(self, title, key="Escape"):
        self.to_front(title)
        self.stage.key(key)
        wait_for(f"'{title}' to go", lambda: not self.stage.has_window(title))


class Walk(House):
    """Goes from window to window and calls `look(name, title)` while each is there: `title` is how that of its window
    begins."""

    def __init__(self, stage, name, look, environment=None):
        super().__init__(stage, name, auto_login=False)
        self.look = look
        self.environment = environment or {}
        self.troubles = []

    def attempt(self, name, step):
        """A window that does not come is told, and the others are looked at all the same."""
        try:
            step()
        except StageError as error:
            self.troubles.append(f"{name}: {error}")
            self.stage.screenshot(self.stage.folder / f"no-{name}.png")
            self.stage.key("Escape")

    # -- the login --

    def login(self):
        stage = self.stage
        self.launch(environment=self.environment)
        stage.window(MAIN + "Login", 40)
        self.to_front(MAIN + "Login")
        self.look("login", MAIN + "Login")
        self.press("New User")
        self.node("New user name")
        self.look("new-user", MAIN + "Login")
        self.node("New user name").grab_focus()
        stage.type("eva\tsecret\tsecret")
        self.press("Next >")
        self.node("MySpace e-mail")
        self.look("web-logins", MAIN + "Login")
        self.press("Finish")
        self.node("Login", BUTTONS)
        self.press("Login")
        wait_for("the login to go", lambda: not stage.has_window(MAIN + "Login"))
        self.reach_main_window()

    # -- the music pane --

    def music(self):
        self.look("music", MAIN)

    def play(self):
        self.tab_to("Tracks", ("list",))
        self.stage.key("Home", "Return")
        wait_for("the song to play", lambda: (self.eyes.value(self.node("Position in the song", ("slider",))) or 0) > 0)

    def playing(self):
        self.look("playing", MAIN)

    def menus(self):
        for name in ("File", "Music Player"):
            self.act(self.node(name, MENUS))
            time.sleep(0.3)
            self.look("menu-" + name.replace(" ", "-"), None)
            self.stage.key("Escape", "Escape")

    def panes(self):
        self.menu("Music Player", "Just Show Tracks")
        self.look("just-tracks", MAIN)
        self.menu("Music Player", "Just Show Tracks")
        self.tab_to("Tracks", ("list",))
        self.stage.key("Home")
        self.press("Add song to a playlist")
        self.node("Playlist to add the song to")
        self.look("add-to-playlist", MAIN)
        self.stage.key("Escape")

    # -- dialogs --

    DIALOGS = (("add-favourite", "Add Favourite", "Edit", "Favourites"),
               ("delete-group", "Delete Group", "File", "Delete", "Favourites Group"),
               ("speaker-test", "Sound Test", "Music Player", "Sound Test"),
               ("about", "About", "Help", "About"),
               ("new-playlist", "New Play List", "File", "New", "Play list"),
               ("clean-up", "Clean-up", "Music Player", "Clean-up Duplicates"),
               ("open-media", "Open", "File", "Open", "Media File"))

    def dialog(self, name, title, *menu):
        self.menu(*menu)
        self.to_front(title)
        self.look(name, title)
        self.dismiss(title)

    def dialogs(self):
        for row in self.DIALOGS:
            self.attempt(row[0], lambda row=row: self.dialog(*row))

    def add_media(self):
        self.menu("File", "Add", "Media to Library")
        self.to_front("Add Media")
        self.look("add-media", "Add Media")
        self.press("Done")
        wait_for("the window to go", lambda: not self.stage.has_window("Add Media"))

    def preferences(self):
        title = MAIN + "Preferences"
        self.menu("Options", "Preferences")
        self.to_front(title)
        for pane in ("Options", "Maintenance", "Back-up"):
            self.press(pane)
            time.sleep(0.2)
            self.look("preferences-" + pane, title)
        self.dismiss(title)

    # -- pages --

    def type_address(self, text):
        self.to_front(MAIN)
        self.stage.key("ctrl+l")
        self.stage.type(text)

    def open_page(self, address):
        self.type_address(address)
        self.stage.key("Return")

    def page(self):
        stage = self.stage
        self.open_page(self.address("/owls"))
        stage.window(MAIN + "Owls", 40)
        self.look("page", MAIN)
        for name, keys in (("find-bar", "ctrl+f"), ("security", "ctrl+shift+l"), ("tab-finder", "ctrl+shift+a")):
            stage.key(keys)
            time.sleep(0.5)
            self.look(name, MAIN)
            stage.key("Escape")
        # The find bar leaves the keyboard to the page.
        stage.key("ctrl+f", "Escape")
        time.sleep(0.5)
        stage.key("Menu")
        time.sleep(0.5)
        self.look("page-menu", None)
        stage.key("Escape")
        self.type_address("127")
        time.sleep(0.5)
        self.look("suggestions", None)
        stage.key("Escape")

    def more_pages(self):
        stage = self.stage
        self.to_front(MAIN)
        stage.key("ctrl+j")
        self.to_front("Downloads")
        self.look("downloads", "Downloads")
        self.dismiss("Downloads")
        self.to_front(MAIN)
        stage.key("ctrl+p")
        time.sleep(1.5)
        self.look("print", None)
        stage.key("Escape")
        for address, title in (("settings", "Settings"), ("keys", "Keys"), ("start/index.php?page3=help", "Help")):
            self.open_page(f"brindlepost://{address}")
            stage.window(MAIN + title, 40)
            time.sleep(1)
            self.look("page-" + title.lower(), None)

    # -- pictures --

    def light(self):
        self.menu("Music Player", "Special", "Visualisations", "Mood Light")
        time.sleep(0.5)
        self.look("mood-light", None)
        self.menu("Music Player", "Special", "Visualisations", "None")

    def exit_question(self):
        self.to_front(MAIN)
        self.stage.key("alt+F4")
        time.sleep(0.7)
        self.look("question-at-exit", None)

    SHORT = ("music", "play")
    ALL = ("music", "play", "playing", "menus", "panes", "dialogs", "add_media", "preferences", "page", "more_pages", "light",
           "exit_question")

    def go(self, parts):
        self.attempt("login", self.login)
        for part in parts:
            self.attempt(part, getattr(self, part))
