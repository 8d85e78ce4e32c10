# Set these when you distribute the program: with -D on the command line, or here.
set(SORVANE_ADDRESS_LINE_1 "Sorvane" CACHE STRING "Where request forms are mailed to, first line")
set(SORVANE_ADDRESS_LINE_2 "Requests for new lotteries" CACHE STRING "... second line")
set(SORVANE_ADDRESS_LINE_3 "in care of whoever gave you" CACHE STRING "... third line")
set(SORVANE_ADDRESS_LINE_4 "this copy of the program" CACHE STRING "... fourth line")
set(SORVANE_DISCLAIMER
    "Warning: this program keeps your own records and comes without any warranty. What a ticket is worth is \
decided by the lottery's own rules and official results alone. Please play responsibly."
    CACHE STRING "The legal warning of the about box")
