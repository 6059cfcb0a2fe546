; The yards, each with its name, the fewest pushes that it can be done with, and its rows:
;   # wall   $ crock   . place   * crock on its place   @ child   + child on a place   ~ ice
; A row ends by |, a yard by 0.

kLevels         equ 18

levels: dw level_1, level_2, level_3, level_4, level_5, level_6
         dw level_7, level_8, level_9, level_10, level_11, level_12
         dw level_13, level_14, level_15, level_16, level_17, level_18

level_1:
        db      "첫눈", 0, 5
        db      "#######|"
        db      "#     #|"
        db      "#   . #|"
        db      "##$# ##|"
        db      "#@. $ #|"
        db      "#     #|"
        db      "#######|"
        db      0

level_2:
        db      "두 기둥", 0, 6
        db      "########|"
        db      "#@$ .  #|"
        db      "# #$ # #|"
        db      "#   .  #|"
        db      "# #  # #|"
        db      "# $ .  #|"
        db      "########|"
        db      0

level_3:
        db      "첫 얼음", 0, 6
        db      "    ####|"
        db      "    #~.#|"
        db      "  ### ~#|"
        db      "###~$~ #|"
        db      "#.~ ~$~#|"
        db      "#####@##|"
        db      "    ###|"
        db      0

level_4:
        db      "부엌 앞", 0, 9
        db      " ######|"
        db      "##    #|"
        db      "#  . $##|"
        db      "# #.# @#|"
        db      "#    $ #|"
        db      "###  ###|"
        db      "  ####|"
        db      0

level_5:
        db      "장작더미", 0, 10
        db      " #####|"
        db      " #   ####|"
        db      " #$#    #|"
        db      "## .#   #|"
        db      "#@$.  ###|"
        db      "# $.# #|"
        db      "###   #|"
        db      "  #####|"
        db      0

level_6:
        db      "샘가", 0, 9
        db      "######|"
        db      "#+~$ ###|"
        db      "##~$~ ~#|"
        db      " #~~$~~#|"
        db      "##~~~#~#|"
        db      "#.~  ###|"
        db      "##.  #|"
        db      " #####|"
        db      0

level_7:
        db      "세 항아리", 0, 12
        db      "####|"
        db      "#@ ###|"
        db      "# $$ ###|"
        db      "# $ ...#|"
        db      "########|"
        db      0

level_8:
        db      "언 도랑", 0, 12
        db      "   #####|"
        db      "   # ~~##|"
        db      "   # #$.#|"
        db      "#### #~~#|"
        db      "#@~ ~$~.#|"
        db      "# .~ ~$ #|"
        db      "#########|"
        db      0

level_9:
        db      "좁은 광", 0, 13
        db      "  #######|"
        db      "###@ .  #|"
        db      "#  $ #  #|"
        db      "#  $ .  #|"
        db      "# $  #  #|"
        db      "###  .  #|"
        db      "  #######|"
        db      0

level_10:
        db      "디딤돌", 0, 13
        db      "#########|"
        db      "#@  #   #|"
        db      "# #.$$# #|"
        db      "#   #   #|"
        db      "##$.#. ##|"
        db      "#  $#   #|"
        db      "# #  .# #|"
        db      "#   #   #|"
        db      "#########|"
        db      0

level_11:
        db      "눈 위의 발자국", 0, 15
        db      "  #####|"
        db      "  #   #|"
        db      "### #$####|"
        db      "#@ $.$   #|"
        db      "# # ~#~# #|"
        db      "#  .~.~  #|"
        db      "### ~ ####|"
        db      "  #   #|"
        db      "  #####|"
        db      0

level_12:
        db      "미끄럼", 0, 16
        db      " ####|"
        db      " #~.####|"
        db      "##~~~$@#|"
        db      "#.~~~$ #|"
        db      "# $~.~##|"
        db      "### ~##|"
        db      "  ####|"
        db      0

level_13:
        db      "뒤뜰", 0, 18
        db      "   #####|"
        db      "####@. #|"
        db      "#  $$$ #|"
        db      "#   . ##|"
        db      "#.#####|"
        db      "###|"
        db      0

level_14:
        db      "물레방아", 0, 18
        db      "#########|"
        db      "#+. ## ~#|"
        db      "#~~$.$ .#|"
        db      "## ~#~~$#|"
        db      "## ~$~ ~#|"
        db      "#   #   #|"
        db      "## ~##~ #|"
        db      " ########|"
        db      0

level_15:
        db      "얼음 굴", 0, 20
        db      "#######|"
        db      "#..~.~#|"
        db      "####~ ##|"
        db      "  #    #|"
        db      " ##$~~###|"
        db      " # ~ ~$~#|"
        db      " #~~~$  #|"
        db      " ####@ ##|"
        db      "    ####|"
        db      0

level_16:
        db      "굴뚝 옆", 0, 24
        db      "     ###|"
        db      "   ###.#|"
        db      "####@ .#|"
        db      "#  $$. #|"
        db      "#   $ ##|"
        db      "#   ###|"
        db      "#####|"
        db      0

level_17:
        db      "큰 마당", 0, 30
        db      "  ########|"
        db      "###  ~ ~ #|"
        db      "# #  $ ~ #|"
        db      "#  $  #~~#|"
        db      "#    #~.$#|"
        db      "##~##. ~ #|"
        db      "# $##~~ .#|"
        db      "##@#.~~  #|"
        db      " #########|"
        db      0

level_18:
        db      "설날 아침", 0, 36
        db      "  ####|"
        db      "  #  #|"
        db      "  # $#|"
        db      "### .#|"
        db      "#@$  ###|"
        db      "# ..$  #|"
        db      "##  $. #|"
        db      " #######|"
        db      0
