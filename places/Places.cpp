#include "places/Places.h"

namespace places {

Places::Places(PlacesWindows windows, PlacesState state, PlacesRoles others, PlacesPorts ports,
               const PlacesStores& stores)
    : history_(windows.history, windows.menu, windows.datSong, state.Save_History,
               {.address = others.address,
                .page = others.page,
                .played = others.played,
                .deleted = [this] { suggestions_.ForgetVisits(); }},
               ports.dialogs, ports.pages),
      dialog_(windows.add,
              {.datFav = windows.favourites.datFav, .lblEntryCount = windows.favourites.lblEntryCount},
              panel_, state.mainclose, {.window = others.window, .lists = others.lists},
              {.dialogs = ports.dialogs, .loop = ports.loop}),
      panel_(windows.favourites, windows.menu, dialog_,
             {.address = others.address,
              .opener = others.opener,
              .page = others.page,
              .layout = others.layout,
              .video = others.video,
              .highlights = others.highlights,
              .keys = others.keys},
             ports.dialogs),
      exchange_({.datFav = windows.favourites.datFav, .lblEntryCount = windows.favourites.lblEntryCount},
                panel_),
      suggestions_(stores.stores, stores.folder) {}

}  // namespace places
