# The help file: the pages of resources/help in one compressed file beside the program.
add_custom_target(korvet_help)
