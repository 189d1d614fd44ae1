#include "panes/Mailbox.h"

namespace gallery {

const std::vector<Folder> &mailbox() {
  static const std::vector<Folder> folders = {
      {"Inbox",
       {{"The lighthouse walk on Sunday", "Mara Lind",
         "We meet at the harbour at nine and take the coast path. Bring something warm: on the "
         "cliff it is always windier than it looks from town.\n\nIf it rains we sit in the café "
         "and look at the maps of last year instead.\n\nMara"},
        {"Minutes of the garden club", "Otto Brandt",
         "The beds along the south wall go to the school. The compost is turned in March, not in "
         "April. Nobody has found the second key."},
        {"Your repaired lamp", "Workshop Ferrand",
         "The switch was worn and has been replaced. The shade we left as it was; it has a fine "
         "crack, which does no harm. You can fetch it from Tuesday on."},
        {"Re: four or five chapters?", "Ines Okafor",
         "Five. The fourth one is really two, and the reader notices.\n\nI have put the letters "
         "of 1911 into an appendix, where they can be long."}}},
      {"Drafts",
       {{"To the landlord", "You",
         "The window on the stairs does not close, and the radiator below it therefore heats the "
         "street."},
        {"Recipe for the plum cake", "You", "Two pounds of plums, and patience."}}},
      {"Sent",
       {{"Re: The lighthouse walk on Sunday", "You", "I bring the thermos and the dog."},
        {"Train to Lyon", "You",
         "Carriage 12, seats 45 and 46. We change once, and have eleven minutes for it."},
        {"Thank you", "You", "For the evening, and for the book."}}},
      {"Archive",
       {{"Piano tuning", "A. Hollis",
         "It holds the pitch now. Please keep it away from the stove."},
        {"Snow on the pass", "Road service", "Closed above 1,400 metres until further notice."}}},
  };
  return folders;
}

}  // namespace gallery
